/* What the reads of a day's check cost by themselves: each log read once, and for each of its lines that
   hold text two positioned reads of the record of the cart that it names, as the load and the comparison
   make them. Nothing is shown, kept or compared. A whole check can't be quicker than this; bench/day.py
   tells by how much it is slower.

   usage: reads_floor LIST-FILE... -- LOG...
   The list files are those of the parts from 1 on, a thousand carts each. */
#include <fcntl.h>
#include <stdio.h>
#include <string.h>
#include <sys/types.h>
#include <unistd.h>

enum { kRecord = 300, kLengthAt = 270, kCartsOfAPart = 1000, kReadAtOnce = 64 * 1024, kLists = 11 };

static int lists[kLists];
static int listCount;
static double total;
static long lines;

static void ReadCart(long cart) {
  char record[kRecord];
  float length;
  int time;
  if (cart < 1 || cart > (long)listCount * kCartsOfAPart) return;
  for (time = 0; time < 2; ++time) {
    const off_t at = (off_t)((cart - 1) % kCartsOfAPart) * kRecord;
    if (pread(lists[(cart - 1) / kCartsOfAPart], record, kRecord, at) != kRecord) return;
    memcpy(&length, record + kLengthAt, sizeof length);
    total += length;
  }
}

/* The number stands in columns 15 to 22, or in 12 to 15 of a line with a bar in column 6. */
static void ReadLine(const char* line, size_t size) {
  const int isOld = size > 5 && line[5] == '|';
  size_t next = isOld ? 11 : 14;
  const size_t end = isOld ? 15 : 22;
  long cart = 0;
  if (size < end) return;
  for (; next < end; ++next) {
    if (line[next] != ' ') cart = cart * 10 + (line[next] - '0');
  }
  ++lines;
  ReadCart(cart);
}

static int ReadLog(const char* path) {
  static char buffer[2 * kReadAtOnce];
  size_t held = 0;
  ssize_t got;
  const int file = open(path, O_RDONLY);
  if (file < 0) return 0;
  while ((got = read(file, buffer + held, kReadAtOnce)) > 0) {
    const char* begin = buffer;
    const char* end;
    held += (size_t)got;
    while ((end = memchr(begin, '\n', held)) != NULL) {
      ReadLine(begin, (size_t)(end - begin));
      held -= (size_t)(end - begin) + 1;
      begin = end + 1;
    }
    if (held > kReadAtOnce) return 0;
    memmove(buffer, begin, held);
  }
  close(file);
  return got == 0;
}

int main(int count, char** arguments) {
  int i = 1;
  for (; i < count && strcmp(arguments[i], "--") != 0 && listCount < kLists; ++i) {
    lists[listCount] = open(arguments[i], O_RDONLY);
    if (lists[listCount] < 0) return 2;
    ++listCount;
  }
  for (++i; i < count; ++i) {
    if (!ReadLog(arguments[i])) return 2;
  }
  printf("%ld lines, %.2f seconds\n", lines, total);
  return 0;
}
