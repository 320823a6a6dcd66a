# Warnings for our own code; what Qt generates is built without them.
add_library(orreva_warnings INTERFACE)
target_compile_options(orreva_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)

# Formulas are computed in the order written: no fused multiply-add, no reassociation.
add_compile_options(-ffp-contract=off)
# Assertions name a source as "src/lib/LibString.cpp", wherever it was built.
add_compile_options(-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=)
# A program links the functions that it calls and no others.
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(-Wl,--gc-sections)
