#pragma once

#include "Models/ExportedFile.h"
#include "Models/PelkoDocument.h"

#include <QList>

/// Pages as Markdown files with their pictures beside them.
namespace Export
{

/// The page, named by its title.
QList<ExportedFile> page(const PelkoDocument &document);

/// All pages, those of each space in a folder of its own. The names depend on nothing but the pages: the same
/// library is always the same files.
QList<ExportedFile> library(const QList<PelkoDocument> &documents);

/// Returns the number of pages and pictures as text, such as "12 pages and 1 picture".
QString contents(const QList<PelkoDocument> &documents);

} // namespace Export
