# What tests and demonstrations are made of is built soon rather than well.

# Compiles with little optimisation: without any, thousands of inline functions stay, over which GNU's linker takes longer
# than the compiler saves. Further arguments: headers to parse once.
function(compile_quickly target)
  # At this level GCC 12 takes the copying of an empty wide text for one beyond its end (GCC's bug 105329).
  target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-O1>
    -Wno-array-bounds -Wno-restrict -Wno-stringop-overread -Wno-stringop-overflow)
  if(ARGN)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# Tests that run Windows programs, and how many seconds they take: the longest are begun first. Under Wine each run has a
# machine of its own, so that they run side by side; Windows has one desktop and one registry for all.
function(windows_tests seconds)
  set_tests_properties(${ARGN} PROPERTIES TIMEOUT 300 COST ${seconds})
  if(NOT CMAKE_CROSSCOMPILING)
    set_tests_properties(${ARGN} PROPERTIES RESOURCE_LOCK windows)
  endif()
endfunction()
