# GoogleTest for the cross-built tests: compiled from the sources that the distribution ships.
find_path(KW_GTEST_SOURCE googletest/src/gtest-all.cc PATHS /usr/src/googletest
          NO_CMAKE_FIND_ROOT_PATH REQUIRED)
set(folder ${KW_GTEST_SOURCE}/googletest)
add_library(kw_gtest STATIC ${folder}/src/gtest-all.cc ${folder}/src/gtest_main.cc)
target_include_directories(kw_gtest SYSTEM PUBLIC ${folder}/include PRIVATE ${folder})
add_library(GTest::gtest ALIAS kw_gtest)
add_library(GTest::gtest_main ALIAS kw_gtest)
set(GTest_FOUND TRUE)
