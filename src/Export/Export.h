#pragma once

#include "Models/ExportedFile.h"
#include "Models/PelkoDocument.h"

#include <QList>

/// Exports pages as Markdown files with their pictures in separate files.
namespace Export
{

/// Returns the files of the page, named by its title.
QList<ExportedFile> page(const PelkoDocument &document);

/// Returns the files of all pages, with a folder for each space. The names depend on the pages only, so the
/// same library always has the same files.
QList<ExportedFile> library(const QList<PelkoDocument> &documents);

/// Returns the number of pages and pictures as text, such as "12 pages and 1 picture".
QString contents(const QList<PelkoDocument> &documents);

} // namespace Export
