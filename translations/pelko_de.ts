<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AddImageButton</name>
    <message>
        <source>Add image</source>
        <translation>Bild einfügen</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>Five is the limit.</source>
        <translation>Bei fünf ist Schluss.</translation>
    </message>
    <message>
        <source>You&apos;ve got 5 docs in this space. Archive one first. Constraints breed creativity.</source>
        <translation>Hier liegen schon 5 Seiten. Archivier erst eine. Enge macht erfinderisch.</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>Na gut</translation>
    </message>
    <message>
        <source>Built by Dravel. Fueled by espresso and poor decisions.</source>
        <translation>Gebaut von Dravel. Angetrieben von Espresso und schlechten Entscheidungen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Couldn&apos;t import image.</source>
        <translation>Das Bild ließ sich nicht einfügen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Nah</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>BannerTitleField</name>
    <message>
        <source>Banner title</source>
        <translation>Bannertitel</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
</context>
<context>
    <name>BannerToggleButton</name>
    <message>
        <source>Unbanner</source>
        <translation>Kein Banner</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Banner</translation>
    </message>
</context>
<context>
    <name>BlockGrip</name>
    <message>
        <source>Drag to move the block, or press Alt+Up or Alt+Down in it. A click opens its menu.</source>
        <translation>Zieh, um den Block zu verschieben, oder drück darin Alt+Auf oder Alt+Ab. Ein Klick öffnet sein Menü.</translation>
    </message>
    <message>
        <source>Move Block</source>
        <translation>Block verschieben</translation>
    </message>
</context>
<context>
    <name>BlockKinds</name>
    <message>
        <source>Heading</source>
        <translation>Überschrift</translation>
    </message>
    <message>
        <source>Start writing...</source>
        <translation>Schreib los...</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Write it down</source>
        <translation>Schreib&apos;s auf</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Zitat</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Checklist</source>
        <translation>Checkliste</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Banner</translation>
    </message>
</context>
<context>
    <name>BlockList</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
</context>
<context>
    <name>BlockMenu</name>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Default Width</source>
        <translation>Normale Breite</translation>
    </message>
    <message>
        <source>Full Width</source>
        <translation>Volle Breite</translation>
    </message>
    <message>
        <source>Delete Block</source>
        <translation>Block löschen</translation>
    </message>
</context>
<context>
    <name>BubblyDeleteButton</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>CalendarCard</name>
    <message>
        <source>UP NEXT</source>
        <translation>DEMNÄCHST</translation>
    </message>
    <message>
        <source>Nothing scheduled</source>
        <translation>Nichts geplant</translation>
    </message>
</context>
<context>
    <name>CaptureSection</name>
    <message>
        <source>CAPTURE A SPARK</source>
        <translation>FUNKEN FANGEN</translation>
    </message>
    <message>
        <source>Capture a spark</source>
        <translation>Funken fangen</translation>
    </message>
    <message>
        <source>What&apos;s the thought?</source>
        <translation>Was denkst du?</translation>
    </message>
</context>
<context>
    <name>ClockText</name>
    <message>
        <source>h:mm a</source>
        <extracomment>Format of the time of day. &quot;h:mm a&quot; for a clock of twelve hours; &quot;H:mm&quot; or another one without the letter a for one of twenty-four.</extracomment>
        <translation>H:mm</translation>
    </message>
    <message>
        <source>dddd, MMM d</source>
        <extracomment>Format of today&apos;s date: weekday, abbreviated month and day. Keep the letters d and M.</extracomment>
        <translation>dddd, d. MMM</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Try &apos;pelko --help&apos; for more information.</source>
        <translation>Mehr dazu mit „pelko --help“.</translation>
    </message>
    <message>
        <source>Usage: pelko [OPTION]
Write short pages, block by block.

      --spark TEXT     capture a spark, without a window
      --pomodoro VERB  start, pause or reset the timer of the running Pelko,
                       or show its status
      --export DIR     write all pages as Markdown, with their pictures, into DIR
      --overwrite      let --export replace files that are there already
  -h, --help           show this help and end
  -v, --version        show the version and end
</source>
        <extracomment>Keep the columns: what an option does begins at column 23 and ends before column 80.</extracomment>
        <translation>Aufruf: pelko [OPTION]
Schreibt kurze Seiten, Block für Block.

      --spark TEXT     einen Funken fangen, ohne Fenster
      --pomodoro VERB  die Uhr des laufenden Pelko stellen (start, pause oder reset)
                       oder ihren Stand zeigen (status)
      --export ORDNER  alle Seiten als Markdown samt Bildern in ORDNER schreiben
      --overwrite      --export darf Dateien ersetzen, die es schon gibt
  -h, --help           diese Hilfe zeigen und enden
  -v, --version        die Version zeigen und enden
</translation>
    </message>
    <message>
        <source>A spark needs some text.</source>
        <translation>Ein Funke braucht etwas Text.</translation>
    </message>
    <message>
        <source>--pomodoro takes start, pause, reset or status, not &apos;%1&apos;.</source>
        <translation>--pomodoro versteht start, pause, reset und status, nicht „%1“.</translation>
    </message>
    <message>
        <source>--export needs a folder.</source>
        <translation>--export braucht einen Ordner.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>One command at a time.</source>
        <translation>Ein Befehl nach dem anderen.</translation>
    </message>
    <message>
        <source>--overwrite goes with --export.</source>
        <translation>--overwrite gehört zu --export.</translation>
    </message>
</context>
<context>
    <name>DeleteTaskButton</name>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>EditorKeys</name>
    <message>
        <source>Join with the block above</source>
        <translation>Mit dem Block darüber verbinden</translation>
    </message>
    <message>
        <source>New block</source>
        <translation>Neuer Block</translation>
    </message>
    <message>
        <source>New line in a block</source>
        <translation>Neue Zeile im Block</translation>
    </message>
    <message>
        <source>Move block up</source>
        <translation>Block nach oben</translation>
    </message>
    <message>
        <source>Move block down</source>
        <translation>Block nach unten</translation>
    </message>
    <message>
        <source>Menu of the block</source>
        <translation>Menü des Blocks</translation>
    </message>
    <message>
        <source>Leave code</source>
        <translation>Code verlassen</translation>
    </message>
</context>
<context>
    <name>EditorShortcuts</name>
    <message>
        <source>Writing</source>
        <translation>Schreiben</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Start Writing</source>
        <translation>Schreib was</translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message>
        <source>%1 and %2</source>
        <extracomment>Pages and pictures, such as &quot;12 pages and 1 picture&quot;.</extracomment>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>Name of the file of a page without words.</extracomment>
        <translation>Ohne Titel</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s)</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportAlerts</name>
    <message>
        <source>Exporting…</source>
        <translation>Wird exportiert …</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Nah</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Verstanden</translation>
    </message>
</context>
<context>
    <name>ExportViewModel</name>
    <message>
        <source>%1 on the way to “%2”.</source>
        <extracomment>%1 is such as &quot;12 pages and 1 picture&quot;, %2 the name of a folder.</extracomment>
        <translation>%1 auf dem Weg nach „%2“.</translation>
    </message>
    <message>
        <source>Replace “%1”?</source>
        <translation>„%1“ ersetzen?</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n file(s)?</source>
        <translation>
            <numerusform>%n Datei ersetzen?</numerusform>
            <numerusform>%n Dateien ersetzen?</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” has a file of that name.</source>
        <translation>In „%1“ gibt es eine Datei dieses Namens.</translation>
    </message>
    <message>
        <source>“%1” has files of these names, “%2” for one.</source>
        <translation>In „%1“ gibt es Dateien dieser Namen, etwa „%2“.</translation>
    </message>
    <message>
        <source>Export failed: %1. Nothing was left behind.</source>
        <translation>Export gescheitert: %1. Es blieb nichts liegen.</translation>
    </message>
    <message>
        <source>Exported.</source>
        <translation>Exportiert.</translation>
    </message>
    <message>
        <source>%1 in “%2”. Plain Markdown, yours to keep.</source>
        <translation>%1 in „%2“. Schlichtes Markdown, gehört dir.</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Export to a folder</source>
        <translation>In einen Ordner exportieren</translation>
    </message>
    <message>
        <source>Add image</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Export here</source>
        <translation>Hierher exportieren</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
</context>
<context>
    <name>FileError</name>
    <message>
        <source>A document holds a date that is not a number.</source>
        <translation>In einer Seite steckt ein Datum, das keine Zahl ist.</translation>
    </message>
    <message>
        <source>Another Pelko has opened these documents.</source>
        <translation>Ein anderes Pelko hat diese Seiten geöffnet.</translation>
    </message>
    <message>
        <source>The folder of the documents was removed.</source>
        <translation>Der Ordner mit den Seiten ist weg.</translation>
    </message>
    <message>
        <source>The file chooser came to an unexpected end</source>
        <translation>Der Dateidialog hat unerwartet geendet</translation>
    </message>
    <message>
        <source>That is a file, not a folder.</source>
        <translation>Das ist eine Datei, kein Ordner.</translation>
    </message>
</context>
<context>
    <name>FirstTodoButton</name>
    <message>
        <source>To do...</source>
        <translation>Zu tun...</translation>
    </message>
</context>
<context>
    <name>FlameNavButton</name>
    <message>
        <source>Flow %1</source>
        <translation>Flow %1</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Flow</translation>
    </message>
</context>
<context>
    <name>FolderChooserDialog</name>
    <message>
        <source>Export to a folder</source>
        <translation>In einen Ordner exportieren</translation>
    </message>
    <message>
        <source>Add image</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Into “%1”</source>
        <translation>Nach „%1“</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Export here</source>
        <translation>Hierher exportieren</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>FolderList</name>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>No folders in here.</source>
        <translation>Keine Ordner hier.</translation>
    </message>
    <message>
        <source>No pictures here.</source>
        <translation>Keine Bilder hier.</translation>
    </message>
</context>
<context>
    <name>FolderPathField</name>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
</context>
<context>
    <name>FolderPlaces</name>
    <message>
        <source>Places</source>
        <translation>Orte</translation>
    </message>
</context>
<context>
    <name>FullFieldNote</name>
    <message>
        <source>This field holds only %1 characters.</source>
        <translation>Dieses Feld fasst nur %1 Zeichen.</translation>
    </message>
</context>
<context>
    <name>GrowthNote</name>
    <message>
        <source>Showing a long text: %1 %. Ctrl+Z takes a paste back.</source>
        <translation>Langer Text kommt: %1 %. Strg+Z nimmt das Einfügen zurück.</translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
</context>
<context>
    <name>LibraryExport</name>
    <message>
        <source>%1 is there already. Nothing was written; --overwrite replaces files.</source>
        <translation>%1 gibt es schon. Es wurde nichts geschrieben; --overwrite ersetzt Dateien.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more are there already. Nothing was written; --overwrite replaces files.</source>
        <translation>
            <numerusform>%1 und %n weitere gibt es schon. Es wurde nichts geschrieben; --overwrite ersetzt Dateien.</numerusform>
            <numerusform>%1 und %n weitere gibt es schon. Es wurde nichts geschrieben; --overwrite ersetzt Dateien.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exporting %1 of %n file(s)</source>
        <translation>
            <numerusform>Exportiere %1 von %n Datei</numerusform>
            <numerusform>Exportiere %1 von %n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Export gescheitert: %1</translation>
    </message>
    <message>
        <source>Exported %1 to %2</source>
        <extracomment>%1 is such as &quot;12 pages and 1 picture&quot;, %2 a folder.</extracomment>
        <translation>%1 nach %2 exportiert</translation>
    </message>
</context>
<context>
    <name>MainViewModel</name>
    <message>
        <source>Delete “%1” for good?</source>
        <translation>„%1“ endgültig löschen?</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Spaces</source>
        <translation>Räume</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>MenuCommand</name>
    <message>
        <source>New Document</source>
        <translation>Neue Seite</translation>
    </message>
    <message>
        <source>Go to…</source>
        <translation>Gehe zu …</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>Ideen</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Tagebuch</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
    <message>
        <source>Pomodoro</source>
        <translation>Pomodoro</translation>
    </message>
    <message>
        <source>Focus mode</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Export everything…</source>
        <translation>Alles exportieren …</translation>
    </message>
    <message>
        <source>Copy page as Markdown</source>
        <translation>Als Markdown kopieren</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>About Pelko</source>
        <translation>Über Pelko</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>App menu</source>
        <translation>App-Menü</translation>
    </message>
</context>
<context>
    <name>NavigationButton</name>
    <message>
        <source>Go to</source>
        <translation>Gehe zu</translation>
    </message>
</context>
<context>
    <name>NavigationFooter</name>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>Neue Seite</translation>
    </message>
    <message>
        <source>Ctrl N</source>
        <translation>Strg N</translation>
    </message>
</context>
<context>
    <name>NavigationOverlay</name>
    <message>
        <source>Go to</source>
        <translation>Gehe zu</translation>
    </message>
</context>
<context>
    <name>NavigationViewModel</name>
    <message>
        <source>No hits in any space</source>
        <translation>Nirgends ein Treffer</translation>
    </message>
    <message>
        <source>no places left in %1</source>
        <translation>kein Platz mehr in %1</translation>
    </message>
    <message>
        <source>one place left in %1</source>
        <translation>noch ein Platz in %1</translation>
    </message>
    <message>
        <source>two places left in %1</source>
        <translation>noch zwei Plätze in %1</translation>
    </message>
    <message>
        <source>three places left in %1</source>
        <translation>noch drei Plätze in %1</translation>
    </message>
    <message>
        <source>four places left in %1</source>
        <translation>noch vier Plätze in %1</translation>
    </message>
    <message>
        <source>five places left in %1</source>
        <translation>noch fünf Plätze in %1</translation>
    </message>
    <message>
        <source>No pages in %1 yet</source>
        <extracomment>%1 is the name of a space.</extracomment>
        <translation>Noch keine Seite in %1</translation>
    </message>
    <message>
        <source>New Document, %1</source>
        <extracomment>%1 is how many places are left, such as &quot;two places left in Work&quot;.</extracomment>
        <translation>Neue Seite, %1</translation>
    </message>
    <message numerus="yes">
        <source>The best %1 of %n hit(s), all spaces</source>
        <translation>
            <numerusform>Die besten %1 von %n Treffer, alle Räume</numerusform>
            <numerusform>Die besten %1 von %n Treffern, alle Räume</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hit(s), all spaces</source>
        <translation>
            <numerusform>%n Treffer, alle Räume</numerusform>
            <numerusform>%n Treffer, alle Räume</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NewPageRow</name>
    <message>
        <source>New Document</source>
        <translation>Neue Seite</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>PageListModel</name>
    <message numerus="yes">
        <source>%n word(s)</source>
        <translation>
            <numerusform>%n Wort</numerusform>
            <numerusform>%n Wörter</numerusform>
        </translation>
    </message>
    <message>
        <source>open</source>
        <comment>the page, after its name</comment>
        <translation>offen</translation>
    </message>
    <message>
        <source>spark</source>
        <comment>the page, after its name</comment>
        <translation>Funke</translation>
    </message>
    <message>
        <source>pinned</source>
        <comment>the page, after its name</comment>
        <translation>angeheftet</translation>
    </message>
    <message>
        <source>archived</source>
        <comment>the page, after its name</comment>
        <translation>archiviert</translation>
    </message>
</context>
<context>
    <name>PageListRow</name>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>PelkoDocument</name>
    <message>
        <source>MMM d</source>
        <extracomment>Format of a day in a past week: abbreviated month and day. Keep the letters M and d.</extracomment>
        <translation>d. MMM</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>Stands for the title of a page that has none.</extracomment>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message numerus="yes">
        <source>%nm ago</source>
        <comment>minutes</comment>
        <translation>
            <numerusform>vor %n Min.</numerusform>
            <numerusform>vor %n Min.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%nh ago</source>
        <comment>hours</comment>
        <translation>
            <numerusform>vor %n Std.</numerusform>
            <numerusform>vor %n Std.</numerusform>
        </translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message numerus="yes">
        <source>%nd ago</source>
        <comment>days</comment>
        <translation>
            <numerusform>vor %n Tag</numerusform>
            <numerusform>vor %n Tagen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PomodoroTimer</name>
    <message>
        <source>%1 of focus left</source>
        <translation>noch %1 Fokus</translation>
    </message>
    <message>
        <source>%1 of break left</source>
        <translation>noch %1 Pause</translation>
    </message>
    <message>
        <source>Paused, %1</source>
        <translation>Angehalten, %1</translation>
    </message>
    <message>
        <source>Ready for %1 of focus</source>
        <translation>Bereit für %1 Fokus</translation>
    </message>
    <message>
        <source>Ready for %1 of break</source>
        <translation>Bereit für %1 Pause</translation>
    </message>
</context>
<context>
    <name>PomodoroView</name>
    <message>
        <source>Pomodoro</source>
        <translation>Pomodoro</translation>
    </message>
</context>
<context>
    <name>PomodoroViewModel</name>
    <message>
        <source>FOCUS</source>
        <extracomment>What the timer measures, in capitals: time to write or time to rest.</extracomment>
        <translation>FOKUS</translation>
    </message>
    <message>
        <source>BREAK</source>
        <translation>PAUSE</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option „%1“.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Unbekannte Optionen: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Nach „%1“ fehlt etwas.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Nach „%1“ steht zu viel.</translation>
    </message>
</context>
<context>
    <name>QuickAddField</name>
    <message>
        <source>Add task</source>
        <translation>Aufgabe dazu</translation>
    </message>
    <message>
        <source>Add task...</source>
        <translation>Aufgabe dazu...</translation>
    </message>
</context>
<context>
    <name>RemoveTodoButton</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find a page, a word, a spark</source>
        <translation>Such eine Seite, ein Wort, einen Funken</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
</context>
<context>
    <name>SendButton</name>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
</context>
<context>
    <name>SessionDots</name>
    <message numerus="yes">
        <source>Sessions done: %n</source>
        <translation>
            <numerusform>Geschaffte Runden: %n</numerusform>
            <numerusform>Geschaffte Runden: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ShortcutSheet</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Getting around</source>
        <translation>Unterwegs</translation>
    </message>
    <message>
        <source>Keeping</source>
        <extracomment>Heading of the keys that export, and of those of the program.</extracomment>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>At the start of a line</source>
        <translation>Am Anfang einer Zeile</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Überschrift</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Zitat</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>Checklist</source>
        <translation>Checkliste</translation>
    </message>
</context>
<context>
    <name>SingleInstance</name>
    <message>
        <source>Another Pelko has these documents open and does not answer.</source>
        <translation>Ein anderes Pelko hat diese Seiten offen und antwortet nicht.</translation>
    </message>
    <message>
        <source>The documents cannot be locked (%1): do not open them in another Pelko meanwhile.</source>
        <translation>Die Seiten lassen sich nicht sperren (%1): Öffne sie solange in keinem anderen Pelko.</translation>
    </message>
    <message>
        <source>The running Pelko does not answer.</source>
        <translation>Das laufende Pelko antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>Space</name>
    <message>
        <source>Ideas</source>
        <translation>Ideen</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Tagebuch</translation>
    </message>
</context>
<context>
    <name>SpaceTab</name>
    <message numerus="yes">
        <source>%n page(s), five places</source>
        <translation>
            <numerusform>%n Seite, fünf Plätze</numerusform>
            <numerusform>%n Seiten, fünf Plätze</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SpaceTabs</name>
    <message>
        <source>Spaces</source>
        <translation>Räume</translation>
    </message>
    <message>
        <source>Ctrl %1</source>
        <translation>Strg %1</translation>
    </message>
</context>
<context>
    <name>SparkCard</name>
    <message>
        <source>Empty spark</source>
        <translation>Leerer Funke</translation>
    </message>
</context>
<context>
    <name>SparkMenu</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>SparksSection</name>
    <message>
        <source>RECENT</source>
        <translation>NEULICH</translation>
    </message>
    <message numerus="yes">
        <source>Recent sparks: %n</source>
        <translation>
            <numerusform>Letzte Funken: %n</numerusform>
            <numerusform>Letzte Funken: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Sparks you capture appear here.</source>
        <translation>Gefangene Funken landen hier.</translation>
    </message>
</context>
<context>
    <name>StartFailure</name>
    <message>
        <source>Pelko cannot start:</source>
        <translation>Pelko kann nicht starten:</translation>
    </message>
    <message numerus="yes">
        <source>Pelko cannot start. It needs these QML modules, which are not installed: %1.</source>
        <extracomment>The number is not told: %1 lists the modules.</extracomment>
        <translation>
            <numerusform>Pelko kann nicht starten. Es braucht das QML-Modul %1, und das ist nicht installiert.</numerusform>
            <numerusform>Pelko kann nicht starten. Es braucht diese QML-Module, und die sind nicht installiert: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StickyHeader</name>
    <message>
        <source>Sticky</source>
        <translation>Haftnotiz</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>Failed to load your documents.</source>
        <translation>Deine Seiten ließen sich nicht laden.</translation>
    </message>
    <message>
        <source>Save failed: %1</source>
        <translation>Sichern gescheitert: %1</translation>
    </message>
</context>
<context>
    <name>StreakCard</name>
    <message numerus="yes">
        <source>Streak: %n day(s)</source>
        <translation>
            <numerusform>Serie: %n Tag</numerusform>
            <numerusform>Serie: %n Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>STREAK</source>
        <translation>SERIE</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
</context>
<context>
    <name>TaskToggle</name>
    <message>
        <source>To do...</source>
        <translation>Zu tun...</translation>
    </message>
</context>
<context>
    <name>TasksCard</name>
    <message>
        <source>TASKS</source>
        <translation>AUFGABEN</translation>
    </message>
    <message>
        <source>No tasks yet.</source>
        <translation>Noch nichts zu tun.</translation>
    </message>
</context>
<context>
    <name>TasksPanelToggleButton</name>
    <message>
        <source>Tasks panel</source>
        <translation>Aufgabenleiste</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
</context>
<context>
    <name>TasksPanelView</name>
    <message>
        <source>Tasks panel</source>
        <translation>Aufgabenleiste</translation>
    </message>
</context>
<context>
    <name>TasksPanelViewModel</name>
    <message numerus="yes">
        <source>day(s)</source>
        <extracomment>Stands behind the number of the streak.</extracomment>
        <translation>
            <numerusform>Tag</numerusform>
            <numerusform>Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n words · %1</source>
        <extracomment>Length and age of the open page, such as &quot;107 words · 5m ago&quot;.</extracomment>
        <translation>
            <numerusform>%n Wort · %1</numerusform>
            <numerusform>%n Wörter · %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TextBlock</name>
    <message numerus="yes">
        <source>This text is too long to be shown as a whole. %Ln more character(s) are kept.</source>
        <translation>
            <numerusform>Dieser Text ist zu lang, um ihn ganz zu zeigen. %Ln weiteres Zeichen ist aufgehoben.</numerusform>
            <numerusform>Dieser Text ist zu lang, um ihn ganz zu zeigen. %Ln weitere Zeichen sind aufgehoben.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TimerSection</name>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Los</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Von vorn</translation>
    </message>
</context>
<context>
    <name>TimersViewModel</name>
    <message>
        <source>Timer, %1</source>
        <translation>Uhr, %1</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Uhr</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>TitleCapsule</name>
    <message>
        <source>Not saved</source>
        <translation>Nicht gesichert</translation>
    </message>
</context>
<context>
    <name>TodoRow</name>
    <message>
        <source>To do...</source>
        <translation>Zu tun...</translation>
    </message>
</context>
<context>
    <name>TodoToggle</name>
    <message>
        <source>To do...</source>
        <translation>Zu tun...</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Open Pelko</source>
        <translation>Pelko öffnen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Los</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>No session done yet</source>
        <translation>Noch keine Runde geschafft</translation>
    </message>
    <message numerus="yes">
        <source>%n session(s) done</source>
        <translation>
            <numerusform>%n Runde geschafft</numerusform>
            <numerusform>%n Runden geschafft</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedAlerts</name>
    <message>
        <source>Got it</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>Your last changes are not saved.</source>
        <translation>Deine letzten Änderungen sind nicht gesichert.</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Bleiben</translation>
    </message>
    <message>
        <source>Quit and lose them</source>
        <translation>Beenden und verlieren</translation>
    </message>
</context>
<context>
    <name>UpcomingEvents</name>
    <message>
        <source>Untitled</source>
        <comment>an appointment</comment>
        <translation>Ohne Titel</translation>
    </message>
</context>
<context>
    <name>WordGoalCard</name>
    <message>
        <source>DAILY GOAL</source>
        <translation>TAGESZIEL</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n word(s)</source>
        <translation>
            <numerusform>%1 von %n Wort</numerusform>
            <numerusform>%1 von %n Wörtern</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Pelko: Could not locate Application Support directory.</source>
        <translation>Pelko: Der Ordner für die Daten ist nicht zu finden.</translation>
    </message>
    <message>
        <source>Pelko is not running.</source>
        <translation>Pelko läuft nicht.</translation>
    </message>
</context>
</TS>
