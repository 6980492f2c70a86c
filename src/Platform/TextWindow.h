#pragma once

#include <QRasterWindow>

/// A window that shows a text, drawn without Qt Quick, for the case that QML cannot be loaded.
/// Escape and Return close it.
class TextWindow : public QRasterWindow
{
public:
    TextWindow(const QString &title, QString text);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString m_text;
};
