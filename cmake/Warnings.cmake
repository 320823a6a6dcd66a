# Warnings for our own code; what Qt generates is built without them.
option(ORREVA_WERROR "Treat warnings as errors, as the continuous build does" OFF)
add_library(orreva_warnings INTERFACE)
target_compile_options(orreva_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wcast-qual -Wmissing-declarations
  # g++ 12 sees overlaps and overruns in the joining and assignment of std::string where there are none.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-array-bounds -Wno-stringop-overflow>
  $<$<BOOL:${ORREVA_WERROR}>:-Werror>)

# Formulas are computed in the order written: no fused multiply-add, no reassociation.
add_compile_options(-ffp-contract=off)
# Assertions name a source as "src/lib/text/LibString.cpp", wherever it was built; a compiler cache may hand the
# compiler the path from the build directory in place of the absolute one.
file(RELATIVE_PATH sources_from_build ${CMAKE_BINARY_DIR} ${CMAKE_SOURCE_DIR})
add_compile_options(-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/= -fmacro-prefix-map=${sources_from_build}=)
# A program links the functions that it calls and no others.
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(-Wl,--gc-sections)

# Release builds are hardened: foreign bytes come in through five formats.
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong)
  add_link_options(-Wl,-z,relro -Wl,-z,now)
endif()
