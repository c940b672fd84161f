# What every Windows program of ours is built with: no file beside it, hardened, small.
add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX STRICT
  WINVER=0x0A00 _WIN32_WINNT=0x0A00)
add_compile_options(-ffunction-sections -fdata-sections -fstack-protector-strong)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
add_link_options(-static -fstack-protector-strong -Wl,--gc-sections -Wl,--dynamicbase -Wl,--nxcompat -Wl,--high-entropy-va
  $<$<NOT:$<OR:$<CONFIG:Debug>,$<BOOL:$<TARGET_PROPERTY:KEEPS_SYMBOLS>>>>:-s>)

# Not every linker for Windows knows these. They need Windows 10, and terminal servers need not adjust anything for them.
include(CheckLinkerFlag)
foreach(flag --major-os-version,10,--minor-os-version,0 --major-subsystem-version,10,--minor-subsystem-version,0
    --tsaware --no-insert-timestamp)
  string(MAKE_C_IDENTIFIER "LINKER_KNOWS${flag}" known)
  check_linker_flag(CXX -Wl,${flag} ${known})
  if(${known})
    add_link_options(-Wl,${flag})
  endif()
endforeach()
# As the linker tells no time, the compiler tells no directory: two builds of one commit give the same bytes.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>)
# windres must read our .rc files as UTF-8.
set(CMAKE_RC_FLAGS "${CMAKE_RC_FLAGS} -c 65001")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

# For what programs whose symbols are kept are made of. It changes nothing in the code.
set(LINE_NUMBERS $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<CONFIG:Release>>:-g1>)

# Puts a program's symbols into build/…/symbols, from where a debugger reads them by the program's own note of their
# name; the program itself goes without.
function(keep_symbols target)
  set_target_properties(${target} PROPERTIES KEEPS_SYMBOLS ON)
  set(symbols ${CMAKE_BINARY_DIR}/symbols/$<TARGET_FILE_NAME:${target}>.debug)
  # Tools that write a program would note the time in it, too.
  set(untimed ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/symbols
    COMMAND ${untimed} ${CMAKE_OBJCOPY} --only-keep-debug $<TARGET_FILE:${target}> ${symbols}
    COMMAND ${untimed} ${CMAKE_STRIP} --strip-all $<TARGET_FILE:${target}>
    COMMAND ${untimed} ${CMAKE_OBJCOPY} --add-gnu-debuglink=${symbols} $<TARGET_FILE:${target}> VERBATIM)
endfunction()
