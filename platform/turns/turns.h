#pragma once

#include <cstdio>

/// Whether a turn at a file is for reading, beside others who read, or for writing, alone.
enum class Turn { reading, writing };

/// Keeps processes that share a file apart, until they close it. Who has waited for two seconds
/// goes on without a turn, rather than hang with another. On systems without such locks it does
/// nothing.
void takeTurn(std::FILE &file, Turn turn);
