#pragma once

#include <QHash>
#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <QUuid>
#include <QtQml/qqml.h>

/// The decoded pictures of one editor, by block id. A picture is decoded once, on a worker thread, and no
/// larger than it is shown; it is decoded again only for other bytes or a larger size. Entries live as long
/// as the editor. Above the memory budget, the least recently used ones are reduced to small previews. Bytes
/// that cannot be decoded have no entry. Interface thread only.
class ImageCache : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ImageCache(QObject *parent = nullptr);
    ~ImageCache() override;

    /// Returns the picture for a size of `pixels`, possibly smaller for now. Null until it is decoded;
    /// `arrived` is emitted then.
    QImage cachedImage(const QUuid &id, const QByteArray &data, const QSize &pixels);

    /// Returns the upright size of the picture; empty until it is known.
    QSize sizeOf(const QUuid &id, const QByteArray &data);

    /// The number of decodings that were started; for tests.
    int decodings() const { return m_decodings; }
    /// Sets the limit for the memory of decoded pictures, in bytes; for tests.
    void setBudget(qsizetype bytes) { m_budget = bytes; }

Q_SIGNALS:
    void arrived(const QUuid &id);

private:
    struct Entry {
        QByteArray data = {}; // the bytes of this entry, shared with the block
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
