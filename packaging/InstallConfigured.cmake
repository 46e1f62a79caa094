# Runs at install time, when the prefix is known: fills a template with the
# folder the programs are installed in and installs the result, so that it is
# listed in install_manifest.txt like every other file.
#   vexel_template      the template, NAME.in
#   vexel_destination   its folder, below the prefix
#   vexel_bindir        the programs' folder, below the prefix
#   vexel_staging       a folder of the build for the filled file
set(bin "${CMAKE_INSTALL_PREFIX}/${vexel_bindir}")
if(NOT IS_ABSOLUTE "${bin}")
  get_filename_component(bin "${bin}" ABSOLUTE)
endif()

# A desktop entry's Exec quotes the path: inside quotes ", `, $ and \ take a
# backslash, % doubles, and the value as a whole doubles each backslash again.
set(inExec "${bin}")
string(REPLACE "\\" "\\\\" inExec "${inExec}")
foreach(reserved "\"" "`" "$")
  string(REPLACE "${reserved}" "\\${reserved}" inExec "${inExec}")
endforeach()
string(REPLACE "\\" "\\\\" inExec "${inExec}")
string(REPLACE "%" "%%" inExec "${inExec}")

file(READ "${vexel_template}" text)
string(REPLACE "@VEXEL_BIN_IN_EXEC@" "${inExec}" text "${text}")
string(REPLACE "@VEXEL_BIN@" "${bin}" text "${text}")
get_filename_component(name "${vexel_template}" NAME)
string(REGEX REPLACE "\\.in$" "" name "${name}")
file(WRITE "${vexel_staging}/${name}" "${text}")
file(INSTALL DESTINATION "${CMAKE_INSTALL_PREFIX}/${vexel_destination}" TYPE FILE FILES "${vexel_staging}/${name}")
