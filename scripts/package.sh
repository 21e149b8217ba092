#!/usr/bin/env bash
# Makes the package that programs build against, in build/package, and proves it: the hello sample is built from it
# alone, once with pkg-config and once with CMake.
. "$(dirname "$0")/lib.sh"
scripts/setup.sh
build_preset win32 brelt brelt_import_library hello
rm -rf build/package build/package-proof
quietly cmake --install build/win32 --prefix build/package

mkdir -p build/package-proof/cmake
sample=$root/build/package/share/brelt/samples/hello/hello.cpp
flags=$(PKG_CONFIG_LIBDIR=build/package/lib/pkgconfig pkg-config --cflags --libs brelt)
# shellcheck disable=SC2086
quietly i686-w64-mingw32-g++-posix "$sample" $flags -static-libgcc -static-libstdc++ -o build/package-proof/hello.exe

cat >build/package-proof/CMakeLists.txt <<PROJECT
cmake_minimum_required(VERSION 3.20)
project(proof CXX)
find_package(brelt REQUIRED)
add_executable(hello $sample)
target_link_libraries(hello PRIVATE brelt::brelt)
PROJECT
quietly cmake -S build/package-proof -B build/package-proof/cmake -G Ninja \
  "-DCMAKE_TOOLCHAIN_FILE=$root/cmake/toolchain-win32.cmake" "-Dbrelt_DIR=$root/build/package/lib/cmake/brelt"
quietly cmake --build build/package-proof/cmake
say "the package is build/package"
