# OpenCV's core module alone: its CMake package comes only with all modules at once.
find_path(OpenCVCore_INCLUDE_DIR opencv2/core/mat.hpp PATH_SUFFIXES opencv4)
find_library(OpenCVCore_LIBRARY opencv_core)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCVCore REQUIRED_VARS OpenCVCore_LIBRARY OpenCVCore_INCLUDE_DIR)
if(OpenCVCore_FOUND AND NOT TARGET OpenCV::core)
  add_library(OpenCV::core UNKNOWN IMPORTED)
  set_target_properties(OpenCV::core PROPERTIES
    IMPORTED_LOCATION ${OpenCVCore_LIBRARY}
    INTERFACE_SYSTEM_INCLUDE_DIRECTORIES ${OpenCVCore_INCLUDE_DIR}
    INTERFACE_INCLUDE_DIRECTORIES ${OpenCVCore_INCLUDE_DIR})
endif()
