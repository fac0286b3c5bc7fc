# Read after project(): what would have been learnt by compiling for the system.
get_property(CMAKE_CXX_COMPILE_FEATURES GLOBAL PROPERTY CMAKE_CXX_KNOWN_FEATURES)
foreach(language CXX OBJCXX)
  set(CMAKE_${language}_STANDARD_DEFAULT 14)
  set(CMAKE_${language}20_STANDARD_COMPILE_OPTION -std=c++20)
endforeach()
