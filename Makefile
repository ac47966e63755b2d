# For machines that test engines by the hundred and build them with "make EXE=name CXX=compiler"; everybody else builds
# with CMake (README.md). The program speaks full UCI without being asked, because such a machine gives no arguments.
# Needs g++ 12 or clang++ 14, or newer, and the development files of SQLite 3.

EXE ?= tamrek
CXX ?= g++
# Not every clang++ comes with a linker for its own kind of link-time optimisation.
CXXFLAGS ?= -O3 -march=native $(if $(findstring clang,$(CXX)),,-flto=auto)
DEFINES = -DNDEBUG -DTAMREK_UCI_COMPLETO
ENGINE_FLAGS = -std=c++20 -Isrc -ffp-contract=off -fno-exceptions -fno-rtti

ifeq ($(OS),Windows_NT)
    OTHER_SYSTEM = posix
    SUFFIX = $(if $(filter %.exe,$(EXE)),,.exe)
    LDLIBS = -lsqlite3 -static
else
    OTHER_SYSTEM = windows
    LDLIBS = -lsqlite3 -ldl
endif

SOURCES = $(filter-out %_$(OTHER_SYSTEM).cpp,$(wildcard src/*/*.cpp src/*/*/*.cpp))
OBJECTS = $(SOURCES:src/%.cpp=build/make/%.o)
COMPILE = $(CXX) $(CXXFLAGS) $(CPPFLAGS) $(ENGINE_FLAGS) $(DEFINES)
LINK = $(CXX) $(CXXFLAGS) $(OBJECTS) $(LDFLAGS) $(LDLIBS)

$(EXE)$(SUFFIX): $(OBJECTS)
	$(LINK) -o $@

build/make/%.o: src/%.cpp build/make/commands
	@mkdir -p $(@D)
	$(COMPILE) -MMD -MP -c $< -o $@

# Objects of one compiler and its flags serve every name of the program; with others everything is made anew.
build/make/commands: FORCE
	@mkdir -p $(@D)
	@[ "$$(cat $@ 2>/dev/null)" = '$(COMPILE) $(LINK)' ] || echo '$(COMPILE) $(LINK)' >$@

-include $(OBJECTS:.o=.d)

clean:
	rm -rf build/make $(EXE)$(SUFFIX)

.PHONY: clean FORCE
