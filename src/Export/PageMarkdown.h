#pragma once

#include "Models/Block.h"

#include <QHash>
#include <QList>

/// The blocks as CommonMark that says the same: read back, every text is the text of its block. Blocks that
/// say nothing are left out, as are pictures of which no address is known.
///
/// Unlike the Markdown of the pasteboard's selections it keeps no mark that the writer typed: a star on the
/// page is a star in the text.
///
/// `pictures` names where the picture of the block in that row is to be found.
QString pageMarkdown(const QList<Block> &blocks, const QHash<qsizetype, QString> &pictures = {});
