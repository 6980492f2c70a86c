#pragma once

#include "Services/DocumentFile.h"

#include <QUuid>

/// Builds compact JSON text. With a sink it holds little more than `drainAt` bytes, however long the text is;
/// without one it keeps all. The text is always valid UTF-8: half of a surrogate pair becomes U+FFFD.
class JsonText
{
public:
    /// Large writes cost the system less than many small ones.
    static constexpr qsizetype drainAt = 1024 * 1024;

    JsonText() = default;
    explicit JsonText(ByteSink &sink);

    /// Appends JSON as it is, such as punctuation.
    void put(QByteArrayView json);
    void putString(QStringView string);
    void putUuid(const QUuid &uuid);
    /// Appends the shortest number that reads back as exactly this one. NaN and infinity are errors.
    void putNumber(double number);
    void putBool(bool value);
    /// Appends a string in base64.
    void putBytes(QByteArrayView bytes);

    /// Writes the rest to the sink. Returns the first error of encoding or writing.
    [[nodiscard]] std::optional<FileError> finish();
    /// Returns the text that was not written to a sink.
    QByteArray take();
    bool hasFailed() const { return m_error.has_value(); }
    /// Takes over the error of text that was encoded separately.
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
