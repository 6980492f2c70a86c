#pragma once

#include <QHash>
#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <QUuid>
#include <QtQml/qqml.h>

/// The decoded pictures of one editor, by the id of their block. A picture is decoded once, on another
/// thread, no larger than it is shown, and handed out from then on; only other bytes in the same block or a
/// larger place on the screen have it decoded again. Entries stay as long as the editor; when they take more
/// than the budget, those that were asked for longest ago are kept as small previews. Bytes that cannot be
/// decoded make no entry. Interface thread only.
class ImageCache : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ImageCache(QObject *parent = nullptr);
    ~ImageCache() override;

    /// The picture, to be shown as large as `pixels`; null until it has been decoded, which `arrived` tells.
    /// What is handed out may be smaller for the time being.
    QImage cachedImage(const QUuid &id, const QByteArray &data, const QSize &pixels);

    /// How large the picture is, upright; empty until it is known.
    QSize sizeOf(const QUuid &id, const QByteArray &data);

    /// How often bytes were given to a decoder.
    int decodings() const { return m_decodings; }
    /// How many bytes the decoded pictures may take.
    void setBudget(qsizetype bytes) { m_budget = bytes; }

Q_SIGNALS:
    void arrived(const QUuid &id);

private:
    struct Entry {
        QByteArray data = {}; // the bytes this entry is about, shared with the block
        QSize size = {};
        QImage image = {};
        QSize decodedFor = {};
        bool isDecoding = false;
        quint64 lastAsked = 0;
    };

    Entry &entryFor(const QUuid &id, const QByteArray &data);
    void decode(const QUuid &id, Entry &entry, const QSize &pixels);
    void store(const QUuid &id, const QByteArray &data, const QSize &pixels, const QImage &image);
    void keepToBudget();

    QHash<QUuid, Entry> m_entries;
    quint64 m_asked = 0;
    qsizetype m_budget = 40 << 20;
    int m_decodings = 0;
    QThreadPool m_decoder;
};
