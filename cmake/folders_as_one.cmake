option(TARNWICK_EACH_FILE "Compile each file of the programs by itself: for tools, and for who changes one" OFF)

# Compiles the files of one folder as one: what each of them needs of templates is made once, which takes half the
# time. So their helpers have names of their own, and no name of a header is taken again.
function(compile_folders_as_one target)
  get_target_property(sources ${target} SOURCES)
  foreach(source IN LISTS sources)
    get_filename_component(folder ${source} DIRECTORY)
    get_filename_component(folder ${folder} NAME)
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${folder})
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  # A fixture without linkage is no mistake in a file that nobody includes but this one.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endfunction()

# The same for the programs' own code, unless each file is wanted.
function(compile_program_folders_as_one target)
  if(NOT TARNWICK_EACH_FILE)
    compile_folders_as_one(${target})
  endif()
endfunction()
