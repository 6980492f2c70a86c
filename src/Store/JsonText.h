#pragma once

#include "Services/DocumentFile.h"

#include <QUuid>

/// Compact JSON text, put together piece by piece. With a sink to drain into it never holds much more than
/// `drainAt` bytes, however long the text; without one it keeps all. The text is valid UTF-8 in any case:
/// what a QString may hold and UTF-8 may not (half a surrogate pair) becomes U+FFFD.
class JsonText
{
public:
    /// Large, as the system takes a large file in large pieces for less.
    static constexpr qsizetype drainAt = 1024 * 1024;

    JsonText() = default;
    explicit JsonText(ByteSink &sink);

    /// JSON as it is, punctuation for instance.
    void put(QByteArrayView json);
    void putString(QStringView string);
    void putUuid(const QUuid &uuid);
    /// The shortest number that reads back as exactly this one. JSON knows no NaN and no infinity: an error.
    void putNumber(double number);
    void putBool(bool value);
    /// As a string of base64.
    void putBytes(QByteArrayView bytes);

    /// Drains the rest. Returns the first error of encoding or writing.
    [[nodiscard]] std::optional<FileError> finish();
    /// The text that was not drained.
    QByteArray take();
    bool hasFailed() const { return m_error.has_value(); }
    /// For text that was encoded separately and inserted.
    void inheritError(const JsonText &other);

private:
    char *room(qsizetype count);
    void advanceTo(const char *end);
    void drain();

    ByteSink *m_sink = nullptr;
    QByteArray m_bytes; // its size is the room there is; `m_size` of it are text
    qsizetype m_size = 0;
    std::optional<FileError> m_error;
};
