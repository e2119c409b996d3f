// Settings of the leak checker. They are not in a file, as the option that would name it takes no
// path with a space or a colon.

// NOLINTBEGIN(bugprone-reserved-identifier): the names that the checker looks for

// Leaks of libraries, none of ours.
extern "C" const char *__lsan_default_suppressions() {
  return "leak:libfontconfig\n"
         "leak:libdbus\n"
         "leak:libglib\n"
         "leak:libX11\n"
         "leak:libpulse\n";
}

// Without the last option the leak checker of GCC 12 stumbles over libraries that SDL loads late.
extern "C" const char *__lsan_default_options() {
  return "print_suppressions=0:intercept_tls_get_addr=0";
}

// NOLINTEND(bugprone-reserved-identifier)
