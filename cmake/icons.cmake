# add_icon(TARGET NAME): draws assets/NAME.svg as NAME.ico, which the resources of TARGET, and of what links it, may name.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(CONVERT convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)
set(PLAIN_ICON_SIZES 16 20 24 32)
set(PACKED_ICON_SIZES 48 256)

function(add_icon target name)
  set(drawing ${PROJECT_SOURCE_DIR}/assets/${name}.svg)
  set(stem ${CMAKE_BINARY_DIR}/icons/${name})
  set(commands COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/icons)
  set(pictures)
  foreach(size IN LISTS PLAIN_ICON_SIZES PACKED_ICON_SIZES)
    list(APPEND commands COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${stem}-${size}.png ${drawing})
    if(size IN_LIST PACKED_ICON_SIZES)
      # Large pictures go in as they are, with a palette: a tenth of the room.
      list(APPEND commands COMMAND ${CONVERT} ${stem}-${size}.png -strip +dither -colors 128 PNG8:${stem}-${size}p.png)
      list(APPEND pictures --raw=${stem}-${size}p.png)
    else()
      list(APPEND pictures ${stem}-${size}.png)
    endif()
  endforeach()
  add_custom_command(OUTPUT ${stem}.ico
    ${commands}
    COMMAND ${ICOTOOL} --create --output=${stem}.ico ${pictures}
    DEPENDS ${drawing} VERBATIM COMMENT "Drawing ${name}.ico")
  add_custom_target(${name}-icon DEPENDS ${stem}.ico)
  add_dependencies(${target} ${name}-icon)
  target_include_directories(${target} PUBLIC ${CMAKE_BINARY_DIR}/icons)
endfunction()
