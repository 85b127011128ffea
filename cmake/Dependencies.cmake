find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Concurrent Charts Network Xml Svg
                                          SvgWidgets Test LinguistTools)
find_package(OpenCV 4 REQUIRED COMPONENTS core imgproc imgcodecs features2d flann img_hash calib3d)
find_package(PkgConfig REQUIRED)
pkg_check_modules(LIBRAW REQUIRED IMPORTED_TARGET libraw_r)
pkg_check_modules(LIBHEIF REQUIRED IMPORTED_TARGET libheif)
pkg_check_modules(XXHASH REQUIRED IMPORTED_TARGET libxxhash)
# The content-key cache talks to SQLite directly: the command line starts without loading a
# SQL plugin, and the cache needs the library's own result codes to tell damage from a busy
# file.
find_package(SQLite3 REQUIRED)
find_package(spdlog REQUIRED)
find_package(Backward REQUIRED)

# Developer machines share compiled objects between build folders when ccache is there.
find_program(VELTRINE_CCACHE ccache)
if(VELTRINE_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${VELTRINE_CCACHE})
endif()
