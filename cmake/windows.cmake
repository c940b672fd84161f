# What every Windows program of ours is built with: no file beside it, hardened, small.
add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX STRICT
  WINVER=0x0A00 _WIN32_WINNT=0x0A00)
add_compile_options(-ffunction-sections -fdata-sections -fstack-protector-strong)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
add_link_options(-static -fstack-protector-strong -Wl,--gc-sections -Wl,--dynamicbase -Wl,--nxcompat -Wl,--high-entropy-va
  $<$<NOT:$<CONFIG:Debug>>:-s>)
# They need Windows 10, and terminal servers need not adjust anything for them.
add_link_options(-Wl,--major-os-version,10,--minor-os-version,0
  -Wl,--major-subsystem-version,10,--minor-subsystem-version,0 -Wl,--tsaware)
# Two builds of one commit give the same bytes: no time, and no name of the directory they were made in.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>)
add_link_options(-Wl,--no-insert-timestamp)
# windres must read our .rc files as UTF-8.
set(CMAKE_RC_FLAGS "${CMAKE_RC_FLAGS} -c 65001")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
