# Helpers that make the project's targets. Sources are found by folder, so that a new file needs no
# line here; a target whose folders hold no source is left out.
include(GoogleTest)

# korvane_sources(<variable> <pattern>...): the files of the current folder, main.cpp apart.
function(korvane_sources variable)
  list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  file(GLOB sources CONFIGURE_DEPENDS ${ARGN})
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  set(${variable} ${sources} PARENT_SCOPE)
endfunction()

# korvane_add_library(<name> FOLDERS <folder>... LIBRARIES <library>...)
function(korvane_add_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FOLDERS;LIBRARIES")
  list(TRANSFORM arg_FOLDERS APPEND /*.cpp)
  korvane_sources(sources ${arg_FOLDERS})
  if(sources)
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC korvane_options ${arg_LIBRARIES})
  endif()
endfunction()

# korvane_add_executable(<name> SOURCES <file>... LIBRARIES <library>...)
function(korvane_add_executable name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
  if(arg_SOURCES)
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE korvane_options ${arg_LIBRARIES})
  endif()
endfunction()

# korvane_add_test(<name> SOURCES <file>... LIBRARIES <library>...): an executable of GoogleTest
# cases, each a test of its own. Cases find the project's files through KORVANE_SOURCE_DIR.
function(korvane_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
  korvane_add_executable(${name} SOURCES ${arg_SOURCES} LIBRARIES ${arg_LIBRARIES} GTest::gtest_main)
  if(TARGET ${name})
    target_compile_definitions(${name} PRIVATE KORVANE_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60)
  endif()
endfunction()
