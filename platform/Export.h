// What libkestEdit offers to other programs.
#pragma once

/// Stands before the name of every class and function that an installed header declares. Whatever lacks it stays inside
/// the shared library: the libraries are compiled with hidden visibility.
#define KESTEDIT_EXPORT __attribute__((visibility("default")))
