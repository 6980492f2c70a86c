#pragma once

#include <QByteArray>

// The files of these tests are written with ' for ", so that they can be read.
inline constexpr auto idA = "0A1B2C3D-4E5F-6789-ABCD-EF0123456789";

inline QByteArray inJson(QByteArray text)
{
    return text.replace('\'', '"');
}

/// A file of one document with these members beside the required ones.
inline QByteArray fileWith(const QByteArray &members, const QByteArray &blocks = "[]")
{
    const QByteArray required = QByteArray("'id':'") + idA + "','space':'work','blocks':" + blocks;
    return inJson("[{" + required + ",'createdAt':1" + (members.isEmpty() ? "" : ",") + members + "}]");
}

inline QByteArray fileWithBlock(const QByteArray &members)
{
    const QByteArray required = QByteArray("'id':'") + idA + "','type':'image','content':''";
    return fileWith("", "[{" + required + (members.isEmpty() ? "" : ",") + members + "}]");
}

inline QByteArray fileWithTodo(const QByteArray &members)
{
    return fileWithBlock(QByteArray("'todos':[{'id':'") + idA + "'," + members + "}]");
}

inline QByteArray fileWithContent(const QByteArray &json)
{
    return fileWith("", QByteArray("[{'id':'") + idA + "','type':'quote','content':" + json + "}]");
}

inline QByteArray nested(int depth)
{
    return QByteArray(depth, '[') + '1' + QByteArray(depth, ']');
}
