#pragma once

#include <QByteArrayView>
#include <QString>

/// Returns the usual file name suffix of a picture, without the dot, from its first bytes; "bin" if the
/// format is unknown.
QString pictureSuffix(QByteArrayView picture);
