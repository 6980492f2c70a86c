#pragma once

#include "Models/Block.h"

#include <QHash>
#include <QList>

/// Returns the blocks as CommonMark. Read back, every text equals the text of its block. Blocks without
/// content and pictures without an address are left out.
///
/// Unlike ClipboardFormats::markdown it escapes typed marks: a star on the page stays a star.
///
/// `pictures` maps rows to the addresses of their pictures.
QString pageMarkdown(const QList<Block> &blocks, const QHash<qsizetype, QString> &pictures = {});
