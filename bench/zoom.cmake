# Frames of the window. Its pictures are those of the build.
if(TARGET gatewise_stage)
  add_executable(bench_zoom zoom.cpp)
  target_link_libraries(bench_zoom PRIVATE gatewise_warnings gatewise_stage benchmark::benchmark)
  target_compile_definitions(bench_zoom PRIVATE GATEWISE_PROGRAM_DIR="${GATEWISE_DELIVERED_DIR}")
endif()
