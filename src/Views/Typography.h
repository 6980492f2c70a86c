#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqml.h>

/// All fonts of the app with size, weight and tracking, and the line heights of multi-line text. Sizes are in
/// device-independent pixels. QML fonts have integer pixel sizes and some sizes are fractional, so the fonts
/// are created here with point sizes that correspond to them.
class Typography : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString textFamily READ textFamily CONSTANT)
    Q_PROPERTY(QString displayFamily READ displayFamily CONSTANT)
    Q_PROPERTY(QString monoFamily READ monoFamily CONSTANT)
    Q_PROPERTY(QFont bannerTitle READ bannerTitle CONSTANT)
    Q_PROPERTY(QFont heading READ heading CONSTANT)
    Q_PROPERTY(QFont body READ body CONSTANT)
    Q_PROPERTY(QFont quote READ quote CONSTANT)
    Q_PROPERTY(QFont code READ code CONSTANT)
    Q_PROPERTY(QFont checklist READ checklist CONSTANT)
    Q_PROPERTY(QFont stickyLabel READ stickyLabel CONSTANT)
    Q_PROPERTY(QFont sheetTitle READ sheetTitle CONSTANT)
    Q_PROPERTY(QFont dialogTitle READ dialogTitle CONSTANT)
    Q_PROPERTY(QFont message READ message CONSTANT)
    Q_PROPERTY(QFont button READ button CONSTANT)
    Q_PROPERTY(QFont listTitle READ listTitle CONSTANT)
    Q_PROPERTY(QFont meta READ meta CONSTANT)
    Q_PROPERTY(QFont menuRow READ menuRow CONSTANT)
    Q_PROPERTY(QFont menuKey READ menuKey CONSTANT)
    Q_PROPERTY(QFont capsule READ capsule CONSTANT)
    Q_PROPERTY(QFont caption READ caption CONSTANT)
    Q_PROPERTY(QFont pomodoroTime READ pomodoroTime CONSTANT)
    Q_PROPERTY(QFont phaseLabel READ phaseLabel CONSTANT)
    Q_PROPERTY(QFont sessionCount READ sessionCount CONSTANT)
    Q_PROPERTY(QFont captureCaption READ captureCaption CONSTANT)
    Q_PROPERTY(QFont recentCaption READ recentCaption CONSTANT)
    Q_PROPERTY(QFont sparkCount READ sparkCount CONSTANT)
    Q_PROPERTY(QFont sparkText READ sparkText CONSTANT)
    Q_PROPERTY(QFont clock READ clock CONSTANT)
    Q_PROPERTY(QFont clockMarker READ clockMarker CONSTANT)
    Q_PROPERTY(QFont goalFigure READ goalFigure CONSTANT)
    Q_PROPERTY(QFont streakFigure READ streakFigure CONSTANT)
    Q_PROPERTY(QFont cardCaption READ cardCaption CONSTANT)
    Q_PROPERTY(QFont streakCaption READ streakCaption CONSTANT)
    Q_PROPERTY(QFont taskGroup READ taskGroup CONSTANT)
    Q_PROPERTY(QFont taskText READ taskText CONSTANT)
    Q_PROPERTY(QFont noTasks READ noTasks CONSTANT)
    Q_PROPERTY(QFont eventTime READ eventTime CONSTANT)
    Q_PROPERTY(QFont badge READ badge CONSTANT)
    Q_PROPERTY(int bannerTitleLine READ bannerTitleLine CONSTANT)
    Q_PROPERTY(int headingLine READ headingLine CONSTANT)
    Q_PROPERTY(int bodyLine READ bodyLine CONSTANT)
    Q_PROPERTY(int quoteLine READ quoteLine CONSTANT)
    Q_PROPERTY(int codeLine READ codeLine CONSTANT)
    Q_PROPERTY(int checklistRow READ checklistRow CONSTANT)
    Q_PROPERTY(int dialogTitleLine READ dialogTitleLine CONSTANT)
    Q_PROPERTY(int messageLine READ messageLine CONSTANT)
    Q_PROPERTY(int listTitleLine READ listTitleLine CONSTANT)
    Q_PROPERTY(int metaLine READ metaLine CONSTANT)
    Q_PROPERTY(int pomodoroTimeLine READ pomodoroTimeLine CONSTANT)
    Q_PROPERTY(int sparkLine READ sparkLine CONSTANT)
    Q_PROPERTY(int clockLine READ clockLine CONSTANT)
    Q_PROPERTY(int goalLine READ goalLine CONSTANT)
    Q_PROPERTY(int streakLine READ streakLine CONSTANT)
    Q_PROPERTY(int taskLine READ taskLine CONSTANT)
    Q_PROPERTY(int eventTimeLine READ eventTimeLine CONSTANT)
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit Typography(QObject *parent = nullptr);

    QString textFamily() const { return m_textFamily; }
    QString displayFamily() const { return m_displayFamily; }
    QString monoFamily() const { return m_monoFamily; }

    QFont bannerTitle() const { return face(m_displayFamily, 38, QFont::Bold, -0.7); }
    QFont heading() const { return face(m_displayFamily, 34, QFont::Bold, -0.5); }
    QFont body() const { return face(m_textFamily, 16.5, QFont::Normal); }
    /// The text family: a quote is read like text, and the display family's italic q is broken in Debian 12.
    QFont quote() const { return italic(face(m_textFamily, 18, QFont::Normal)); }
    QFont code() const { return face(m_monoFamily, 13.5, QFont::Normal); }
    QFont checklist() const { return face(m_textFamily, 15, QFont::Normal); }
    QFont stickyLabel() const { return face(m_textFamily, 11, QFont::DemiBold, 0.3); }
    QFont sheetTitle() const { return face(m_displayFamily, 20, QFont::DemiBold); }
    QFont dialogTitle() const { return face(m_displayFamily, 17, QFont::DemiBold); }
    QFont message() const { return face(m_textFamily, 13, QFont::Normal); }
    QFont button() const { return face(m_textFamily, 13, QFont::Medium); }
    QFont listTitle() const { return face(m_textFamily, 14, QFont::Medium); }
    QFont meta() const { return face(m_textFamily, 11.5, QFont::Normal); }
    QFont menuRow() const { return face(m_textFamily, 13, QFont::Normal); }
    QFont menuKey() const { return face(m_textFamily, 11, QFont::Normal); }
    QFont capsule() const { return face(m_textFamily, 11, QFont::Medium); }
    QFont caption() const { return face(m_textFamily, 10, QFont::Bold, 1.2); }

    QFont pomodoroTime() const { return face(m_monoFamily, 38, QFont::Light, -0.5); }
    QFont phaseLabel() const { return face(m_textFamily, 9, QFont::Bold, 2); }
    QFont sessionCount() const { return face(m_textFamily, 9, QFont::Medium); }
    QFont captureCaption() const { return face(m_textFamily, 9, QFont::DemiBold, 1.4); }
    QFont recentCaption() const { return face(m_textFamily, 9, QFont::Bold, 1.4); }
    QFont sparkCount() const { return face(m_textFamily, 9, QFont::DemiBold); }
    QFont sparkText() const { return face(m_textFamily, 12, QFont::Normal); }

    QFont clock() const { return face(m_displayFamily, 32, QFont::Light); }
    QFont clockMarker() const { return face(m_textFamily, 11, QFont::DemiBold); }
    QFont goalFigure() const { return face(m_displayFamily, 22, QFont::DemiBold); }
    QFont streakFigure() const { return face(m_displayFamily, 20, QFont::DemiBold); }
    QFont cardCaption() const { return face(m_textFamily, 9, QFont::Bold, 1.2); }
    QFont streakCaption() const { return face(m_textFamily, 8, QFont::Bold, 1.2); }
    QFont taskGroup() const { return face(m_textFamily, 8, QFont::Bold, 0.5); }
    QFont taskText() const { return face(m_textFamily, 11, QFont::Normal); }
    QFont noTasks() const { return face(m_textFamily, 10, QFont::Normal); }
    QFont eventTime() const { return face(m_textFamily, 9, QFont::Medium); }
    QFont badge() const { return face(m_textFamily, 9, QFont::ExtraBold); }

    int bannerTitleLine() const { return 44; }
    int headingLine() const { return 42; }
    int bodyLine() const { return 27; }
    int quoteLine() const { return 29; }
    int codeLine() const { return 22; }
    int checklistRow() const { return 30; }
    int dialogTitleLine() const { return 23; }
    int messageLine() const { return 19; }
    int listTitleLine() const { return 19; }
    int metaLine() const { return 16; }
    int pomodoroTimeLine() const { return 46; }
    int sparkLine() const { return 17; }
    int clockLine() const { return 36; }
    int goalLine() const { return 27; }
    int streakLine() const { return 25; }
    int taskLine() const { return 14; }
    int eventTimeLine() const { return 12; }

    /// The font of the given height in pixels, with `tracking` pixels added after each letter.
    Q_INVOKABLE QFont face(const QString &family, qreal pixels, int weight, qreal tracking = 0) const;
    /// Returns the font without kerning and ligatures, which makes the layout of long texts much faster.
    Q_INVOKABLE static QFont unshaped(QFont font);
    /// The size of a point in device-independent pixels.
    Q_INVOKABLE qreal pixelsPerPoint() const;

private:
    static QFont italic(QFont font);

    QString m_textFamily;
    QString m_displayFamily;
    QString m_monoFamily;
};
