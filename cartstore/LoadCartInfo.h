// The one way on which every cart is read.
#pragma once

#include <cstdint>

#include "cartstore/CartRecord.h"

namespace logchecker {

// Fills `info` in every case, with the blank cart for one that is unused, outside the store or
// can't be read. Returns 0 when it could read, -1 when the number is out of range or its part can't
// be used, otherwise the number of the error that the read met. Nothing is cached: every call reads
// anew. A part whose read failed is opened again, quietly, by the next call.
int16_t LoadCartInfo(CartInfo& info, int32_t cartNumber);

// What the check takes of a cart, in seconds; the fields are the record's.
struct CartLengths {
  float Length = 0;
  float PlayLength = 0;
};

// The same read, with the same result and traces, for those who want no more than this of a cart.
int16_t LoadCartLengths(CartLengths& lengths, int32_t cartNumber);

}  // namespace logchecker
