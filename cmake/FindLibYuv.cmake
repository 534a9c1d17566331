# Debian's libyuv comes without a description for CMake or pkg-config.
find_path(LibYuv_INCLUDE_DIR libyuv.h)
find_library(LibYuv_LIBRARY yuv)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(LibYuv REQUIRED_VARS LibYuv_LIBRARY LibYuv_INCLUDE_DIR)
if(LibYuv_FOUND AND NOT TARGET LibYuv::yuv)
  add_library(LibYuv::yuv UNKNOWN IMPORTED)
  set_target_properties(LibYuv::yuv PROPERTIES
    IMPORTED_LOCATION ${LibYuv_LIBRARY}
    INTERFACE_SYSTEM_INCLUDE_DIRECTORIES ${LibYuv_INCLUDE_DIR}
    INTERFACE_INCLUDE_DIRECTORIES ${LibYuv_INCLUDE_DIR})
endif()
