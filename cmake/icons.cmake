# add_icon(TARGET NAME): draws assets/NAME.svg as NAME.ico, which the resources of TARGET may name.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)
set(ICON_SIZES 16 20 24 32 48)

function(add_icon target name)
  set(drawing ${PROJECT_SOURCE_DIR}/assets/${name}.svg)
  set(icon ${CMAKE_BINARY_DIR}/icons/${name}.ico)
  set(draw_pictures)
  set(pictures)
  foreach(size IN LISTS ICON_SIZES)
    set(picture ${CMAKE_BINARY_DIR}/icons/${name}-${size}.png)
    list(APPEND draw_pictures COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${picture} ${drawing})
    list(APPEND pictures ${picture})
  endforeach()
  set(large ${CMAKE_BINARY_DIR}/icons/${name}-256.png)
  add_custom_command(OUTPUT ${icon}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/icons
    ${draw_pictures}
    COMMAND ${RSVG_CONVERT} -w 256 -h 256 -o ${large} ${drawing}
    COMMAND ${ICOTOOL} --create --output=${icon} ${pictures} --raw=${large}
    DEPENDS ${drawing} VERBATIM COMMENT "Drawing ${name}.ico")
  add_custom_target(${name}-icon DEPENDS ${icon})
  add_dependencies(${target} ${name}-icon)
  target_include_directories(${target} PRIVATE ${CMAKE_BINARY_DIR}/icons)
endfunction()
