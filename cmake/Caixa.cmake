# What every target of the cash desk has in common.

add_library(caixa_options INTERFACE)
target_compile_options(caixa_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough -Werror)
# g++ 12 sees overlaps in std::string's own copying that cannot be (GCC bug 105329).
target_compile_options(caixa_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(caixa_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
if(CAIXA_SANITIZERS)
  target_compile_options(caixa_options INTERFACE
    -fsanitize=${CAIXA_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(caixa_options INTERFACE -fsanitize=${CAIXA_SANITIZERS})
endif()

# caixa_library(NAME DEPENDS...): the sources of this folder as the static library caixa_NAME.
function(caixa_library name)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  add_library(caixa_${name} STATIC ${sources})
  add_library(caixa::${name} ALIAS caixa_${name})
  target_link_libraries(caixa_${name} PUBLIC caixa_options ${ARGN})
endfunction()

# caixa_test(NAME DEPENDS...): the sources of this folder as one GoogleTest binary, a ctest entry a case.
function(caixa_test name)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  add_executable(tests_${name} ${sources})
  target_link_libraries(tests_${name} PRIVATE caixa_options GTest::gmock GTest::gtest_main ${ARGN})
  target_include_directories(tests_${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  gtest_discover_tests(tests_${name} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 300)
endfunction()
