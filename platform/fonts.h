#pragma once

#include <future>

/// Has the configuration of the fonts read in a thread of its own, while the application connects
/// to its display. The first text would wait for it otherwise, a tenth of the whole start. To be
/// called before the application is made; where fonts don't come from fontconfig it does nothing.
std::future<void> readFontsAhead();
