#include "support/QJsonCodec.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

QList<PelkoDocument> readWithQJson(const QByteArray &json)
{
    QList<PelkoDocument> documents;
    const QJsonArray array = QJsonDocument::fromJson(json).array();
    for (const QJsonValueConstRef value : array) {
        PelkoDocument document;
        document.id = QUuid::fromString(value[u"id"_s].toString());
        document.createdAt = value[u"createdAt"_s].toDouble();
        document.updatedAt = value[u"updatedAt"_s].toDouble();
        for (const QJsonValue &part : value[u"blocks"_s].toArray()) {
            Block block(*blockTypeFromRawValue(part[u"type"_s].toString()), part[u"content"_s].toString());
            block.id = QUuid::fromString(part[u"id"_s].toString());
            if (part[u"imageData"_s].isString())
                block.imageData = QByteArray::fromBase64(part[u"imageData"_s].toString().toLatin1());
            document.blocks.append(block);
        }
        documents.append(document);
    }
    return documents;
}

QByteArray writeWithQJson(const QList<PelkoDocument> &documents)
{
    QJsonArray json;
    for (const PelkoDocument &document : documents) {
        QJsonArray blocks;
        for (const Block &block : document.blocks) {
            QJsonObject object{{u"id"_s, block.id.toString(QUuid::WithoutBraces)},
                               {u"type"_s, rawValue(block.type)},
                               {u"content"_s, block.content}};
            if (block.imageData)
                object[u"imageData"_s] = QString::fromLatin1(block.imageData->toBase64());
            blocks.append(object);
        }
        json.append(QJsonObject{{u"id"_s, document.id.toString(QUuid::WithoutBraces)},
                                {u"space"_s, rawValue(document.space)},
                                {u"blocks"_s, blocks},
                                {u"createdAt"_s, document.createdAt},
                                {u"updatedAt"_s, *document.updatedAt}});
    }
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}
