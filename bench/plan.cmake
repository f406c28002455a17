add_executable(bench_plan plan.cpp)
target_link_libraries(bench_plan PRIVATE gatewise_warnings gatewise_plan benchmark::benchmark_main)
