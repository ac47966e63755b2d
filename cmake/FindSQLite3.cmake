# Stands in for CMake's own module where the system has no SQLite of the target: compiles the amalgamation that lies in
# TAMREK_SQLITE. The engine reads one file from one thread, and extensions are not for it.
enable_language(C)
add_library(sqlite3 STATIC ${TAMREK_SQLITE}/sqlite3.c)
set_target_properties(sqlite3 PROPERTIES INTERPROCEDURAL_OPTIMIZATION OFF)
target_compile_definitions(sqlite3 PRIVATE SQLITE_THREADSAFE=0 SQLITE_OMIT_LOAD_EXTENSION)
target_compile_options(sqlite3 PRIVATE -w)
target_include_directories(sqlite3 SYSTEM INTERFACE ${TAMREK_SQLITE})
add_library(SQLite::SQLite3 ALIAS sqlite3)
set(SQLite3_FOUND TRUE)
