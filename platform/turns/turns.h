#pragma once

#include <cstdio>

/// A turn at a file: for reading, together with others who read, or for writing, alone.
enum class Turn { reading, writing };

/// Keeps processes that share a file apart, until they close it. A process that has waited for two
/// seconds goes on without a turn, so that it does not hang. On systems without such locks it does
/// nothing.
void takeTurn(std::FILE &file, Turn turn);
