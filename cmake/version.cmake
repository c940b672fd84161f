# What resources, manifests, code and packages say of the product's version, all made from project() and VERSION_DATE.
string(REGEX REPLACE "^0+([0-9])" "\\1" minor "${PROJECT_VERSION_MINOR}")
set(VERSION_NUMBERS "${PROJECT_VERSION_MAJOR},${minor},0,0")
set(VERSION_QUAD "${PROJECT_VERSION_MAJOR}.${minor}.0.0")
set(GENERATED_DIR ${PROJECT_BINARY_DIR}/generated)
