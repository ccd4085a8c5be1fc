# Shared build settings for every Lumidate target.

# Our own code is built with every common warning. Developers and
# scripts/test turn them into errors (LUMIDATE_WERROR=ON); a packager's build
# with another compiler or optimisation level warns but does not fail.
# Third-party headers come in through imported targets, which CMake treats as
# system includes.
function(lumidate_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra)
  if(LUMIDATE_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
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

# Dates of photos are wall-clock times: no result may depend on the machine's
# time zone. Date suites run once in each of these: UTC, one with daylight
# saving, and two far from it with odd offsets (+12:45/+13:45, and a
# half-hour daylight-saving change).
set(LUMIDATE_TEST_ZONES UTC America/New_York Pacific/Chatham Australia/Lord_Howe)

# lumidate_test(NAME SOURCES ... DEPS ... [IN_EVERY_ZONE])
# A GoogleTest binary whose cases are registered with CTest one by one; with
# IN_EVERY_ZONE once per zone of LUMIDATE_TEST_ZONES, named CASE.TZ_ZONE.
function(lumidate_test name)
  cmake_parse_arguments(T "IN_EVERY_ZONE" "" "SOURCES;DEPS" ${ARGN})
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE ${T_DEPS} lumidate_testsupport GTest::gtest GTest::gtest_main GTest::gmock)
  lumidate_warnings(${name})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Tests build photos by growing byte vectors from short literals. At -O3
    # GCC 12 follows those inserts into libstdc++'s vector code and reports
    # bounds it made up itself (GCC bug 107852); the program's own code keeps
    # the warning.
    target_compile_options(${name} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
  endif()
  if(NOT T_IN_EVERY_ZONE)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
    return()
  endif()
  foreach(zone ${LUMIDATE_TEST_ZONES})
    string(REPLACE "/" "_" suffix ${zone})
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 TEST_SUFFIX ".TZ_${suffix}"
                         PROPERTIES ENVIRONMENT "TZ=${zone};QT_QPA_PLATFORM=offscreen")
  endforeach()
endfunction()

# lumidate_zone_runs(TARGET FILTER): the cases of an existing test binary
# that FILTER selects (a --gtest_filter), run once more in every zone of
# LUMIDATE_TEST_ZONES as one CTest test per zone.
function(lumidate_zone_runs target filter)
  foreach(zone ${LUMIDATE_TEST_ZONES})
    string(REPLACE "/" "_" suffix ${zone})
    add_test(NAME ${target}_TZ_${suffix} COMMAND ${target} --gtest_filter=${filter})
    set_tests_properties(${target}_TZ_${suffix} PROPERTIES ENVIRONMENT "TZ=${zone};QT_QPA_PLATFORM=offscreen")
  endforeach()
endfunction()
