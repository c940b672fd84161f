# What tests and demonstrations are made of is built soon rather than well.

# Compiles without optimisation. Further arguments: headers to parse once.
function(compile_quickly target)
  target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-O0>)
  if(ARGN)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# Has the programs of this directory, and of those below it, linked by LLVM's linker where it is installed: GNU's takes
# up to twenty seconds for the thousands of small sections that unoptimised tests have.
macro(link_quickly)
  find_program(CLANG clang++)
  find_program(LLD ld.lld)
  if(CMAKE_CROSSCOMPILING AND CLANG AND LLD)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-libgcc-file-name
      OUTPUT_VARIABLE GCC_LIBRARIES OUTPUT_STRIP_TRAILING_WHITESPACE)
    get_filename_component(GCC_LIBRARIES ${GCC_LIBRARIES} DIRECTORY)
    string(REPLACE "<CMAKE_CXX_COMPILER>"
      "${CLANG} --target=x86_64-w64-windows-gnu -fuse-ld=lld -pthread -L${GCC_LIBRARIES}"
      CMAKE_CXX_LINK_EXECUTABLE "${CMAKE_CXX_LINK_EXECUTABLE}")
  endif()
endmacro()
