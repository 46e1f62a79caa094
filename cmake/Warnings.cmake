# Every target of ours links this to get the house warnings.
add_library(vexel_warnings INTERFACE)
target_compile_options(vexel_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual)
if(VEXEL_WERROR)
  target_compile_options(vexel_warnings INTERFACE -Werror)
endif()
