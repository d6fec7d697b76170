#include "headless/pages/Sha256.h"

#include <bit>
#include <cstddef>

namespace logchecker {

namespace {

constexpr size_t kBlock = 64;       // bytes
constexpr size_t kLengthBytes = 8;  // of the message's length at the end of the last block
using State = std::array<uint32_t, 8>;

// The fractions of the cube roots of the first 64 primes.
constexpr std::array<uint32_t, 64> kRound = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

// The fractions of the square roots of the first eight primes.
constexpr State kBeginning = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                              0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};

std::array<uint32_t, 64> Schedule(std::string_view block) {
  std::array<uint32_t, 64> words{};
  for (size_t i = 0; i < kBlock; ++i) {
    words[i / 4] = (words[i / 4] << 8U) | static_cast<unsigned char>(block[i]);
  }
  for (size_t i = 16; i < words.size(); ++i) {
    const uint32_t a = words[i - 15];
    const uint32_t b = words[i - 2];
    const uint32_t low = std::rotr(a, 7) ^ std::rotr(a, 18) ^ (a >> 3U);
    const uint32_t high = std::rotr(b, 17) ^ std::rotr(b, 19) ^ (b >> 10U);
    words[i] = words[i - 16] + low + words[i - 7] + high;
  }
  return words;
}

void TakeBlock(State& state, std::string_view block) {
  const std::array<uint32_t, 64> words = Schedule(block);
  State s = state;
  for (size_t i = 0; i < words.size(); ++i) {
    const uint32_t high = std::rotr(s[4], 6) ^ std::rotr(s[4], 11) ^ std::rotr(s[4], 25);
    const uint32_t choice = (s[4] & s[5]) ^ (~s[4] & s[6]);
    const uint32_t first = s[7] + high + choice + kRound[i] + words[i];
    const uint32_t low = std::rotr(s[0], 2) ^ std::rotr(s[0], 13) ^ std::rotr(s[0], 22);
    const uint32_t majority = (s[0] & s[1]) ^ (s[0] & s[2]) ^ (s[1] & s[2]);
    s = {first + low + majority, s[0], s[1], s[2], s[3] + first, s[4], s[5], s[6]};
  }
  for (size_t i = 0; i < state.size(); ++i) state[i] += s[i];
}

// What is left of the message, a one bit, zeros, and the message's length in bits.
std::string Ending(std::string_view rest, uint64_t messageBytes) {
  std::string ending(rest);
  ending += '\x80';
  while (ending.size() % kBlock != kBlock - kLengthBytes) ending += '\0';
  for (size_t i = kLengthBytes; i-- > 0;) {
    ending += static_cast<char>((messageBytes * 8) >> (8 * i));
  }
  return ending;
}

}  // namespace

Sha256Digest Sha256(std::string_view bytes) {
  State state = kBeginning;
  size_t at = 0;
  for (; bytes.size() - at >= kBlock; at += kBlock) TakeBlock(state, bytes.substr(at, kBlock));
  const std::string ending = Ending(bytes.substr(at), bytes.size());
  for (size_t i = 0; i < ending.size(); i += kBlock) {
    TakeBlock(state, std::string_view(ending).substr(i, kBlock));
  }
  Sha256Digest digest{};
  for (size_t i = 0; i < digest.size(); ++i) {
    digest[i] = static_cast<uint8_t>(state[i / 4] >> (8 * (3 - i % 4)));
  }
  return digest;
}

std::string Sha256Base64(std::string_view bytes) {
  constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  const Sha256Digest digest = Sha256(bytes);
  std::string text;
  for (size_t i = 0; i < digest.size(); i += 3) {
    uint32_t bits = 0;
    for (size_t j = i; j < i + 3; ++j) bits = (bits << 8U) | (j < digest.size() ? digest[j] : 0U);
    for (unsigned shift = 18; shift < 24; shift -= 6) text += kDigits[(bits >> shift) & 63U];
  }
  // The last group has two bytes of three.
  text.back() = '=';
  return text;
}

}  // namespace logchecker
