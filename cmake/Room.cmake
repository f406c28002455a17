# A room of the house is a static library of all .cpp files in its folder; LINKS names the rooms it may look into.
# Headers are included from src/ by their room, so that a room's name stands at every arrow.

add_library(gatewise_warnings INTERFACE)
target_compile_options(gatewise_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # With optimisation, g++ 12 reports overlaps and overflows inside the library's texts and vectors that are not there.
  target_compile_options(gatewise_warnings INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds)
endif()
# The numbers of the plan engine are those of plain IEEE arithmetic in the order as written.
target_compile_options(gatewise_warnings INTERFACE -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Two neighbouring doubles that are stored to 32 bits and widened again lose that rounding in g++ 12's straight-line
  # vectoriser (800 x 0.8F gives 640.0000095 instead of 640): the plan's numbers are worth more than its speed.
  target_compile_options(gatewise_warnings INTERFACE -fno-tree-slp-vectorize)
endif()
if(GATEWISE_SANITIZE)
  target_compile_options(gatewise_warnings INTERFACE -fsanitize=${GATEWISE_SANITIZE} -fno-omit-frame-pointer
                                                    -fno-sanitize-recover=undefined)
  target_link_options(gatewise_warnings INTERFACE -fsanitize=${GATEWISE_SANITIZE})
endif()

function(gatewise_room name)
  cmake_parse_arguments(ROOM "" "" "LINKS;SOURCES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  if(sources OR ROOM_SOURCES)
    add_library(gatewise_${name} STATIC ${sources} ${ROOM_SOURCES})
    target_include_directories(gatewise_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(gatewise_${name} PRIVATE gatewise_warnings)
    set_target_properties(gatewise_${name} PROPERTIES UNITY_BUILD ${GATEWISE_TOGETHER} UNITY_BUILD_BATCH_SIZE 6)
    set(scope PUBLIC)
  else()
    add_library(gatewise_${name} INTERFACE)
    target_include_directories(gatewise_${name} INTERFACE "${PROJECT_SOURCE_DIR}/src")
    set(scope INTERFACE)
  endif()
  foreach(link IN LISTS ROOM_LINKS)
    target_link_libraries(gatewise_${name} ${scope} gatewise_${link})
  endforeach()
endfunction()

# Tests are built without optimisation, against rooms that are built as they ship: half of the time to build the tests
# went into optimising their expectations.
add_library(gatewise_test_build INTERFACE)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(gatewise_test_build INTERFACE -O0)
endif()

# A GoogleTest program of all .cpp files in a folder of tests/.
function(gatewise_test name)
  cmake_parse_arguments(TEST "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  if(NOT sources)
    return()
  endif()
  add_executable(test_${name} ${sources})
  target_include_directories(test_${name} PRIVATE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/tests")
  target_compile_definitions(test_${name} PRIVATE GATEWISE_TEST_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
                                                  GATEWISE_PROGRAM_DIR="${GATEWISE_DELIVERED_DIR}")
  target_link_libraries(test_${name} PRIVATE gatewise_warnings gatewise_test_build GTest::gtest_main)
  target_precompile_headers(test_${name} REUSE_FROM gatewise_test_common)
  foreach(link IN LISTS TEST_LINKS)
    target_link_libraries(test_${name} PRIVATE gatewise_${link})
  endforeach()
  gtest_discover_tests(test_${name} DISCOVERY_TIMEOUT 300)
endfunction()
