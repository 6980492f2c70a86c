#pragma once

#include <QByteArray>

// In these files ' stands for ", for readability.
inline constexpr auto idA = "0A1B2C3D-4E5F-6789-ABCD-EF0123456789";

inline QByteArray inJson(QByteArray text)
{
    return text.replace('\'', '"');
}

/// Returns a file of one document with these members in addition to the required ones.
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
