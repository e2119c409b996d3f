#pragma once

#include <future>

/// Has the configuration of the fonts read in a thread of its own, for which the first text would
/// have to wait. To be called behind the making of the application, which changes the locale and
/// the environment that the thread reads. Where fonts don't come from fontconfig it does nothing.
std::future<void> readFontsAhead();
