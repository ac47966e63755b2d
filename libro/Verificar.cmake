# Has the engine MOTOR verify the Book.db of the working directory.
execute_process(COMMAND ${CMAKE_COMMAND} -E echo book COMMAND ${MOTOR} OUTPUT_VARIABLE salida RESULT_VARIABLE estado)
if(NOT estado EQUAL 0 OR NOT salida STREQUAL "Analizando libro de aperturas...\nLibro de apertura correcto.\n")
    message(FATAL_ERROR "The engine rejects the opening book:\n${salida}")
endif()
