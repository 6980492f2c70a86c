#pragma once

#include <QObject>
#include <QTranslator>
#include <QtQml/qqml.h>

/// A language that shows where texts are not translated, and where they need more room: each text of the
/// program is accented, 40 % longer, and in brackets.
class PseudoTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *disambiguation,
                      int n) const override;
};

/// The program speaks it for as long as this lives. With `rightToLeft`, everything is laid out from right to
/// left meanwhile.
class PseudoLocale : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool rightToLeft READ isRightToLeft WRITE setRightToLeft NOTIFY rightToLeftChanged)

public:
    explicit PseudoLocale(QObject *parent = nullptr);
    ~PseudoLocale() override;

    static bool isRightToLeft();
    void setRightToLeft(bool rightToLeft);

Q_SIGNALS:
    void rightToLeftChanged();

private:
    PseudoTranslator m_translator;
};
