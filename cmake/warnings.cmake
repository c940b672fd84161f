# One warning level for every target of ours.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual)
if(NOT TARNWICK_NO_WERROR)
  add_compile_options(-Werror)
endif()
