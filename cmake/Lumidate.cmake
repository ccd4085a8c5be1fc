# Shared build settings for every Lumidate target.

# Warnings are errors in our own code; third-party headers come in through
# imported targets, which CMake treats as system includes.
function(lumidate_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 reports -Wrestrict inside libstdc++'s own std::string code when
    # it is inlined at -O3 or with sanitizers (GCC bug 105329): a false alarm
    # about the library, not about our code.
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
endfunction()

if(LUMIDATE_FUZZ)
  # Coverage instrumentation for the libraries; each fuzz target adds the
  # libFuzzer main itself.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(LUMIDATE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# lumidate_layer(NAME SOURCES ... [DEPS ...])
# One static library per layer. The layer's allowed dependencies are exactly
# what it links, so a forbidden include fails to build.
function(lumidate_layer name)
  cmake_parse_arguments(L "" "" "SOURCES;DEPS" ${ARGN})
  if(NOT L_SOURCES)
    # A layer whose code has not arrived yet still takes part in the graph.
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${name} INTERFACE ${L_DEPS})
    return()
  endif()
  add_library(${name} STATIC ${L_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${L_DEPS})
  lumidate_warnings(${name})
endfunction()

# lumidate_test(NAME SOURCES ... DEPS ...)
# A GoogleTest binary whose cases are registered with CTest one by one.
function(lumidate_test name)
  cmake_parse_arguments(T "" "" "SOURCES;DEPS" ${ARGN})
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE ${T_DEPS} lumidate_testsupport GTest::gtest GTest::gtest_main GTest::gmock)
  lumidate_warnings(${name})
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
