#pragma once

#include "Shell/CommandLine.h"

class DataLocation;

/// Exports all pages of the data file into a folder and returns the output and exit code. Reads the data file
/// without the instance lock. SIGINT, SIGTERM and SIGHUP cancel it and leave no files behind.
CommandLineResult exportLibrary(const DataLocation &location, const ExportCommand &command);
