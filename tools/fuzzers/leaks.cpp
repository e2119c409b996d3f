// Settings of the leak checker. They are not in a file, as the option that would name it takes no
// path with a space or a colon.

// NOLINTBEGIN(bugprone-reserved-identifier): the names that the checker looks for

// A leak of a library, none of ours.
extern "C" const char *__lsan_default_suppressions() { return "leak:libfontconfig\n"; }

extern "C" const char *__lsan_default_options() { return "print_suppressions=0"; }

// NOLINTEND(bugprone-reserved-identifier)
