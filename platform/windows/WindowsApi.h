// The system's own header, without the parts that clash with the standard library or
// with our own names.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

// What is left of calls that once were.
#undef Yield
