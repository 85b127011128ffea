// SPDX-License-Identifier: GPL-3.0-or-later
// Meta-object code of the picture classes, compiled here rather than in the library's
// shared moc object: that object is linked by every program that uses a signal of the
// engine, and with these in it each such program would also pull in the picture classes
// and OpenCV (the command line links without them, see src/CMakeLists.txt).
#include "moc_ImageCompareThread.cpp"
#include "moc_ImageLoadTask.cpp"
