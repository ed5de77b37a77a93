# condtree_table(<target> <table.tsv> ROW <template> [OUTPUT <file>] [UNIQUE <column>...])
#
# Makes a C++ file of a table at build time and adds it to the target's sources, with its folder on the target's
# include path. The table is UTF-8 text: "#" begins a comment line, the first other line names the columns, fields are
# separated by tabs, "\n" stands for a line feed. Every row becomes a line: the template, in which @column@ is the
# field, fit for the inside of a string literal; a field "-" is "{}", and refused where the template has its column in
# quotes. No two rows may agree in all UNIQUE columns.
# A fault of the table ends the build and names the line.
function(condtree_table target table)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "ROW;OUTPUT" "UNIQUE")
  if(NOT arg_OUTPUT)
    cmake_path(GET table STEM stem)
    set(arg_OUTPUT "${stem}.inc")
  endif()
  set(script "${PROJECT_SOURCE_DIR}/cmake/table.cmake")
  set(input "${CMAKE_CURRENT_SOURCE_DIR}/${table}")
  set(output "${CMAKE_CURRENT_BINARY_DIR}/tables/${arg_OUTPUT}")
  list(JOIN arg_UNIQUE "," unique)
  add_custom_command(OUTPUT "${output}"
    COMMAND "${CMAKE_COMMAND}" "-DTABLE=${input}" "-DOUTPUT=${output}" "-DROW=${arg_ROW}" "-DUNIQUE=${unique}"
      -P "${script}"
    DEPENDS "${input}" "${script}"
    COMMENT "Reading ${table}"
    VERBATIM)
  target_sources(${target} PRIVATE "${output}")
  target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/tables")
endfunction()
