# What tests and demonstrations are made of is built soon rather than well.

# Compiles with little optimisation: without any, thousands of inline functions stay, over which GNU's linker takes longer
# than the compiler saves. Further arguments: headers to parse once.
function(compile_quickly target)
  target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-O1>)
  if(ARGN)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()
