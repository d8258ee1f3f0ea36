# ctest reads this file, which makes one test for each suite of a program. It expects `program`, `folder`
# and `limit` (seconds). A suite prints the name of each test, so a crash shows which one it was.
execute_process(COMMAND "${program}" --gtest_list_tests OUTPUT_VARIABLE lines COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\n" ";" lines "${lines}")
foreach(line IN LISTS lines)
    # "Suite." or, with parameters, "Parameters/Suite."; the names of tests are indented.
    if(line MATCHES "^(([A-Za-z0-9_]+/)?([A-Za-z0-9_]+))\\.")
        set(name ${folder}.${CMAKE_MATCH_3})
        add_test(${name} "${program}" "--gtest_filter=${CMAKE_MATCH_1}.*")
        set_tests_properties(${name} PROPERTIES TIMEOUT ${limit})
        # Suites with a window take turns, because the display has one keyboard focus.
        if(NOT folder STREQUAL "unit")
            set_tests_properties(${name} PROPERTIES RESOURCE_LOCK display)
        endif()
    endif()
endforeach()
