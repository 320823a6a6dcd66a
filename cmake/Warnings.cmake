# Warnings for our own code; what Qt generates is built without them.
add_library(orreva_warnings INTERFACE)
target_compile_options(orreva_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)

# Formulas are computed in the order written: no fused multiply-add, no reassociation.
add_compile_options(-ffp-contract=off)
# Assertions name a source as "src/lib/LibString.cpp", wherever it was built; a compiler cache may hand the
# compiler the path from the build directory in place of the absolute one.
file(RELATIVE_PATH sources_from_build ${CMAKE_BINARY_DIR} ${CMAKE_SOURCE_DIR})
add_compile_options(-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/= -fmacro-prefix-map=${sources_from_build}=)
# A program links the functions that it calls and no others.
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(-Wl,--gc-sections)
