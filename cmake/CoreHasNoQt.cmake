# The core library serves the CLI and the MCP server, and the engine the
# recorder on servers, which must stay small: neither may link Qt, directly
# or through another library.
function(vexel_check_no_qt target)
  get_target_property(libs ${target} LINK_LIBRARIES)
  get_target_property(ilibs ${target} INTERFACE_LINK_LIBRARIES)
  foreach(lib IN LISTS libs ilibs)
    if(lib MATCHES "Qt")
      message(FATAL_ERROR "${target} links ${lib}; it must not depend on Qt")
    endif()
  endforeach()
endfunction()
vexel_check_no_qt(vexelcore)
vexel_check_no_qt(vexelengine)
vexel_check_no_qt(vexel-recorder)
