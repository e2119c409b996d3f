#pragma once

#include <cstdio>
#include <filesystem>

/// Opens a file as `std::fopen` does, whatever characters its name has. What is written to it, up to
/// 4096 bytes, becomes one write of the system. Null if it can't be opened.
std::FILE *openFile(const std::filesystem::path &path, const char *mode);

/// A turn at a file: for reading, together with others who read, or for writing, alone.
enum class Turn { reading, writing };

/// Keeps processes that share a file apart, until they close it. A process that has waited for two
/// seconds goes on without a turn, so that it does not hang. On systems without such locks it does
/// nothing.
void takeTurn(std::FILE &file, Turn turn);
