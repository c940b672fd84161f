# One warning level for every target of ours.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual)
# Of the signs Clang warns in C++, too; GCC does not.
add_compile_options($<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>)
if(NOT TARNWICK_NO_WERROR)
  add_compile_options(-Werror)
endif()
