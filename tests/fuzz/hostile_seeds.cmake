# The seeds that are too big to be kept with the sources.
set(HOSTILE_SEEDS ${CMAKE_CURRENT_BINARY_DIR}/hostile)
string(REPEAT "0  c:\\f\r\n" 8001 FULL_TABLE)
file(WRITE ${HOSTILE_SEEDS}/lines-8001 "${FULL_TABLE}")
file(WRITE ${HOSTILE_SEEDS}/lines-8002 "${FULL_TABLE}0  c:\\f\r\n")
string(REPEAT "0123456789abcdef" 65536 MEGABYTE)
file(WRITE ${HOSTILE_SEEDS}/line-of-a-megabyte "0  ${MEGABYTE}")
