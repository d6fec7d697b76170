// Work in a process of its own, for another user where the tests may become one.
#pragma once

#include <functional>

namespace logchecker {

// Users that own nothing else; both are in the group.
inline constexpr unsigned kAlice = 12345;
inline constexpr unsigned kBob = 12346;
inline constexpr unsigned kStudio = 12347;

// Runs `work` in a child process and returns what it returns, 0 to 99; 100 where the child did not
// get that far. Tests that root runs do it as `user` with the group `user` and the further group
// kStudio; tests of an ordinary user do it as that user.
int AsUser(unsigned user, const std::function<int()>& work);

// The same as the user who runs the tests.
int InAChild(const std::function<int()>& work);

// Makes the file one of `user` and the group kStudio where root runs the tests.
void GiveTo(unsigned user, const char* path);

}  // namespace logchecker
