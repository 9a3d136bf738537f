# korvane_options: the language, the warnings and the sanitizers that every target is built with.
add_library(korvane_options INTERFACE)
target_compile_features(korvane_options INTERFACE cxx_std_20)
set(CMAKE_CXX_EXTENSIONS OFF)

# No multiply and add fused into one rounding: results must be the same on every machine.
target_compile_options(korvane_options INTERFACE -ffp-contract=off)

# Tables of data leave trailing fields to their defaults, so that is no warning.
target_compile_options(korvane_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Woverloaded-virtual -Wold-style-cast -Wcast-qual -Wformat=2 -Wimplicit-fallthrough
  -Wno-missing-field-initializers
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict> # GCC 12 sees overlaps in sums of strings where none are
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond> $<$<CXX_COMPILER_ID:GNU>:-Wlogical-op>
  $<$<BOOL:${KORVANE_WERROR}>:-Werror>)

if(KORVANE_SANITIZE)
  set(sanitize -fsanitize=${KORVANE_SANITIZE} -fno-sanitize-recover=all)
  target_compile_options(korvane_options INTERFACE ${sanitize} -fno-omit-frame-pointer
    # With sanitizers GCC 12 takes the standard's regular expressions for uninitialized.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_compile_definitions(korvane_options INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(korvane_options INTERFACE ${sanitize})
endif()
if(KORVANE_FUZZ)
  target_compile_options(korvane_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
