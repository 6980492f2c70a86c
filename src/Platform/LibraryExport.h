#pragma once

#include "Shell/CommandLine.h"

class DataLocation;

/// Writes all pages of the data file into the folder and says what came of it. Only reads the data: nobody
/// else is in the way, and nobody is disturbed. An interrupt gives it up and leaves nothing behind.
CommandLineResult exportLibrary(const DataLocation &location, const ExportCommand &command);
