#pragma once

#include <QProcess>

/// A virtual display.
class PrivateDisplay
{
public:
    PrivateDisplay()
    {
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                        QStringLiteral("0"), QStringLiteral("1400x1000x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp"), QStringLiteral("-noreset")});
        m_server.waitForReadyRead();
        m_name = ':' + m_server.readLine().trimmed();
    }
    ~PrivateDisplay()
    {
        m_server.kill();
        m_server.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(PrivateDisplay)

    QByteArray name() const { return m_name; }

private:
    QProcess m_server;
    QByteArray m_name;
};
