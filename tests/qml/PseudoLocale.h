#pragma once

#include <QObject>
#include <QTranslator>
#include <QtQml/qqml.h>

/// A pseudo-translation that reveals untranslated texts and missing space: each text is accented, 40 %
/// longer, and in brackets.
class PseudoTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *disambiguation,
                      int n) const override;
};

/// Uses the pseudo-translation as long as it lives, and a right-to-left layout if `rightToLeft` is set.
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
