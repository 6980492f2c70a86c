#pragma once

#include <QByteArrayView>
#include <QString>

/// How files of that format usually end, without the dot. The first bytes tell the format; "bin" where they
/// tell nothing.
QString pictureSuffix(QByteArrayView picture);
