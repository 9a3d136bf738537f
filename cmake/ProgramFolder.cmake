# The programs look for the tables and the help pages beside themselves, where they are built as
# where they are installed.
file(GLOB tables CONFIGURE_DEPENDS data/*.[dD][aA][tT] data/*.[pP][lL][tT])

file(MAKE_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY} ${PROJECT_BINARY_DIR}/links)
foreach(table ${tables})
  cmake_path(GET table FILENAME name)
  file(CREATE_LINK ${table} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name} SYMBOLIC)
endforeach()
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/help ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/help SYMBOLIC)

set(program_folder lib/korvane)
install(FILES ${tables} DESTINATION ${program_folder})
install(DIRECTORY help DESTINATION ${program_folder})
foreach(program korvane korvane-driver)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${program_folder})
    file(CREATE_LINK ../${program_folder}/${program} ${PROJECT_BINARY_DIR}/links/${program} SYMBOLIC)
    install(FILES ${PROJECT_BINARY_DIR}/links/${program} DESTINATION bin)
  endif()
endforeach()
