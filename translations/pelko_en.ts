<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Export</name>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s)</source>
        <translation>
            <numerusform>%n picture</numerusform>
            <numerusform>%n pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportViewModel</name>
    <message numerus="yes">
        <source>Replace %n file(s)?</source>
        <translation>
            <numerusform>Replace %n file?</numerusform>
            <numerusform>Replace %n files?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LibraryExport</name>
    <message numerus="yes">
        <source>%1 and %n more are there already. Nothing was written; --overwrite replaces files.</source>
        <translation>
            <numerusform>%1 and %n more are there already. Nothing was written; --overwrite replaces files.</numerusform>
            <numerusform>%1 and %n more are there already. Nothing was written; --overwrite replaces files.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exporting %1 of %n file(s)</source>
        <translation>
            <numerusform>Exporting %1 of %n file</numerusform>
            <numerusform>Exporting %1 of %n files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NavigationViewModel</name>
    <message numerus="yes">
        <source>The best %1 of %n hit(s), all spaces</source>
        <translation>
            <numerusform>The best %1 of %n hit, all spaces</numerusform>
            <numerusform>The best %1 of %n hits, all spaces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hit(s), all spaces</source>
        <translation>
            <numerusform>%n hit, all spaces</numerusform>
            <numerusform>%n hits, all spaces</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PageListModel</name>
    <message numerus="yes">
        <source>%n word(s)</source>
        <translation>
            <numerusform>%n word</numerusform>
            <numerusform>%n words</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PelkoDocument</name>
    <message numerus="yes">
        <source>%nm ago</source>
        <comment>minutes</comment>
        <translation>
            <numerusform>%nm ago</numerusform>
            <numerusform>%nm ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%nh ago</source>
        <comment>hours</comment>
        <translation>
            <numerusform>%nh ago</numerusform>
            <numerusform>%nh ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%nd ago</source>
        <comment>days</comment>
        <translation>
            <numerusform>%nd ago</numerusform>
            <numerusform>%nd ago</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SessionDots</name>
    <message numerus="yes">
        <source>Sessions done: %n</source>
        <translation>
            <numerusform>Sessions done: %n</numerusform>
            <numerusform>Sessions done: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SpaceTab</name>
    <message numerus="yes">
        <source>%n page(s), five places</source>
        <translation>
            <numerusform>%n page, five places</numerusform>
            <numerusform>%n pages, five places</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SparksSection</name>
    <message numerus="yes">
        <source>Recent sparks: %n</source>
        <translation>
            <numerusform>Recent sparks: %n</numerusform>
            <numerusform>Recent sparks: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StartFailure</name>
    <message numerus="yes">
        <source>Pelko cannot start. It needs these QML modules, which are not installed: %1.</source>
        <extracomment>The number is not told: %1 lists the modules.</extracomment>
        <translation>
            <numerusform>Pelko cannot start. It needs the QML module %1, which is not installed.</numerusform>
            <numerusform>Pelko cannot start. It needs these QML modules, which are not installed: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StreakCard</name>
    <message numerus="yes">
        <source>Streak: %n day(s)</source>
        <translation>
            <numerusform>Streak: %n day</numerusform>
            <numerusform>Streak: %n days</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TasksPanelViewModel</name>
    <message numerus="yes">
        <source>day(s)</source>
        <extracomment>Stands behind the number of the streak.</extracomment>
        <translation>
            <numerusform>day</numerusform>
            <numerusform>days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n words · %1</source>
        <extracomment>Length and age of the open page, such as &quot;107 words · 5m ago&quot;.</extracomment>
        <translation>
            <numerusform>%n words · %1</numerusform>
            <numerusform>%n words · %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TextBlock</name>
    <message numerus="yes">
        <source>This text is too long to be shown as a whole. %Ln more character(s) are kept.</source>
        <translation>
            <numerusform>This text is too long to be shown as a whole. %Ln more character is kept.</numerusform>
            <numerusform>This text is too long to be shown as a whole. %Ln more characters are kept.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message numerus="yes">
        <source>%n session(s) done</source>
        <translation>
            <numerusform>%n session done</numerusform>
            <numerusform>%n sessions done</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WordGoalCard</name>
    <message numerus="yes">
        <source>%1 of %n word(s)</source>
        <translation>
            <numerusform>%1 of %n word</numerusform>
            <numerusform>%1 of %n words</numerusform>
        </translation>
    </message>
</context>
</TS>
