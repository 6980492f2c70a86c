<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AddImageButton</name>
    <message>
        <source>Add image</source>
        <translation>Ajouter une image</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>Five is the limit.</source>
        <translation>Cinq, pas plus.</translation>
    </message>
    <message>
        <source>You&apos;ve got 5 docs in this space. Archive one first. Constraints breed creativity.</source>
        <translation>Il y a déjà 5 pages ici. Archives-en une d&apos;abord. La contrainte rend créatif.</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>Soit</translation>
    </message>
    <message>
        <source>Built by Dravel. Fueled by espresso and poor decisions.</source>
        <translation>Fait par Dravel. Carbure à l&apos;espresso et aux mauvaises décisions.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Couldn&apos;t import image.</source>
        <translation>L&apos;image n&apos;a pas pu être ajoutée.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Nah</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>BannerTitleField</name>
    <message>
        <source>Banner title</source>
        <translation>Titre du bandeau</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
</context>
<context>
    <name>BannerToggleButton</name>
    <message>
        <source>Unbanner</source>
        <translation>Sans bandeau</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Bandeau</translation>
    </message>
</context>
<context>
    <name>BlockGrip</name>
    <message>
        <source>Drag to move the block, or press Alt+Up or Alt+Down in it. A click opens its menu.</source>
        <translation>Fais glisser pour déplacer le bloc, ou appuie dedans sur Alt+Haut ou Alt+Bas. Un clic ouvre son menu.</translation>
    </message>
    <message>
        <source>Move Block</source>
        <translation>Déplacer le bloc</translation>
    </message>
</context>
<context>
    <name>BlockKinds</name>
    <message>
        <source>Heading</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Start writing...</source>
        <translation>Écris...</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Write it down</source>
        <translation>Note-le</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Citation</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Checklist</source>
        <translation>Liste à cocher</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Bandeau</translation>
    </message>
</context>
<context>
    <name>BlockList</name>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
</context>
<context>
    <name>BlockMenu</name>
    <message>
        <source>Block</source>
        <translation>Bloc</translation>
    </message>
    <message>
        <source>Default Width</source>
        <translation>Largeur normale</translation>
    </message>
    <message>
        <source>Full Width</source>
        <translation>Pleine largeur</translation>
    </message>
    <message>
        <source>Delete Block</source>
        <translation>Supprimer le bloc</translation>
    </message>
</context>
<context>
    <name>BubblyDeleteButton</name>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>CalendarCard</name>
    <message>
        <source>UP NEXT</source>
        <translation>ENSUITE</translation>
    </message>
    <message>
        <source>Nothing scheduled</source>
        <translation>Rien de prévu</translation>
    </message>
</context>
<context>
    <name>CaptureSection</name>
    <message>
        <source>CAPTURE A SPARK</source>
        <translation>ATTRAPER UNE ÉTINCELLE</translation>
    </message>
    <message>
        <source>Capture a spark</source>
        <translation>Attraper une étincelle</translation>
    </message>
    <message>
        <source>What&apos;s the thought?</source>
        <translation>À quoi penses-tu&#x202f;?</translation>
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
        <translation>dddd d MMM</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Try &apos;pelko --help&apos; for more information.</source>
        <translation>Pour en savoir plus&#xa0;: «&#xa0;pelko --help&#xa0;».</translation>
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
        <translation>Usage : pelko [OPTION]
Écrit des pages courtes, bloc par bloc.

      --spark TEXTE    attraper une étincelle, sans fenêtre
      --pomodoro VERBE lancer (start), suspendre (pause) ou remettre à zéro (reset)
                       le minuteur du Pelko en cours, ou dire où il en est (status)
      --export DOSSIER écrire toutes les pages en Markdown, avec leurs images
      --overwrite      laisser --export remplacer les fichiers déjà présents
  -h, --help           afficher cette aide et finir
  -v, --version        afficher la version et finir
</translation>
    </message>
    <message>
        <source>A spark needs some text.</source>
        <translation>Une étincelle demande un peu de texte.</translation>
    </message>
    <message>
        <source>--pomodoro takes start, pause, reset or status, not &apos;%1&apos;.</source>
        <translation>--pomodoro comprend start, pause, reset et status, pas «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>--export needs a folder.</source>
        <translation>--export demande un dossier.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argument inattendu&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>One command at a time.</source>
        <translation>Une commande à la fois.</translation>
    </message>
    <message>
        <source>--overwrite goes with --export.</source>
        <translation>--overwrite va avec --export.</translation>
    </message>
</context>
<context>
    <name>DeleteTaskButton</name>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer %1</translation>
    </message>
</context>
<context>
    <name>EditorKeys</name>
    <message>
        <source>Join with the block above</source>
        <translation>Joindre au bloc du dessus</translation>
    </message>
    <message>
        <source>New block</source>
        <translation>Nouveau bloc</translation>
    </message>
    <message>
        <source>New line in a block</source>
        <translation>Nouvelle ligne dans un bloc</translation>
    </message>
    <message>
        <source>Move block up</source>
        <translation>Monter le bloc</translation>
    </message>
    <message>
        <source>Move block down</source>
        <translation>Descendre le bloc</translation>
    </message>
    <message>
        <source>Menu of the block</source>
        <translation>Menu du bloc</translation>
    </message>
    <message>
        <source>Leave code</source>
        <translation>Quitter le code</translation>
    </message>
</context>
<context>
    <name>EditorShortcuts</name>
    <message>
        <source>Writing</source>
        <translation>Écrire</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Start Writing</source>
        <translation>Se mettre à écrire</translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message>
        <source>%1 and %2</source>
        <extracomment>Pages and pictures, such as &quot;12 pages and 1 picture&quot;.</extracomment>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>Name of the file of a page without words.</extracomment>
        <translation>Sans titre</translation>
    </message>
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
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportAlerts</name>
    <message>
        <source>Exporting…</source>
        <translation>Export en cours…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Nah</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Compris</translation>
    </message>
</context>
<context>
    <name>ExportViewModel</name>
    <message>
        <source>%1 on the way to “%2”.</source>
        <extracomment>%1 is such as &quot;12 pages and 1 picture&quot;, %2 the name of a folder.</extracomment>
        <translation>%1 en route vers «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Replace “%1”?</source>
        <translation>Remplacer «&#xa0;%1&#xa0;»&#x202f;?</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n file(s)?</source>
        <translation>
            <numerusform>Remplacer %n fichier&#x202f;?</numerusform>
            <numerusform>Remplacer %n fichiers&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” has a file of that name.</source>
        <translation>«&#xa0;%1&#xa0;» contient un fichier de ce nom.</translation>
    </message>
    <message>
        <source>“%1” has files of these names, “%2” for one.</source>
        <translation>«&#xa0;%1&#xa0;» contient des fichiers de ces noms, dont «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Export failed: %1. Nothing was left behind.</source>
        <translation>Échec de l&apos;export&#xa0;: %1. Rien ne traîne.</translation>
    </message>
    <message>
        <source>Exported.</source>
        <translation>Exporté.</translation>
    </message>
    <message>
        <source>%1 in “%2”. Plain Markdown, yours to keep.</source>
        <translation>%1 dans «&#xa0;%2&#xa0;». Du simple Markdown, à toi pour toujours.</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Export to a folder</source>
        <translation>Exporter dans un dossier</translation>
    </message>
    <message>
        <source>Add image</source>
        <translation>Ajouter une image</translation>
    </message>
    <message>
        <source>Export here</source>
        <translation>Exporter ici</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
</context>
<context>
    <name>FileError</name>
    <message>
        <source>A document holds a date that is not a number.</source>
        <translation>Une page contient une date qui n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <source>Another Pelko has opened these documents.</source>
        <translation>Un autre Pelko a ouvert ces pages.</translation>
    </message>
    <message>
        <source>The folder of the documents was removed.</source>
        <translation>Le dossier des pages a disparu.</translation>
    </message>
    <message>
        <source>The file chooser came to an unexpected end</source>
        <translation>Le sélecteur de fichiers s&apos;est arrêté de façon inattendue</translation>
    </message>
    <message>
        <source>That is a file, not a folder.</source>
        <translation>C&apos;est un fichier, pas un dossier.</translation>
    </message>
</context>
<context>
    <name>FirstTodoButton</name>
    <message>
        <source>To do...</source>
        <translation>À faire...</translation>
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
        <translation>Exporter dans un dossier</translation>
    </message>
    <message>
        <source>Add image</source>
        <translation>Ajouter une image</translation>
    </message>
    <message>
        <source>Into “%1”</source>
        <translation>Dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Export here</source>
        <translation>Exporter ici</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
</context>
<context>
    <name>FolderList</name>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>No folders in here.</source>
        <translation>Aucun dossier ici.</translation>
    </message>
    <message>
        <source>No pictures here.</source>
        <translation>Aucune image ici.</translation>
    </message>
</context>
<context>
    <name>FolderPathField</name>
    <message>
        <source>Up</source>
        <translation>Remonter</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
</context>
<context>
    <name>FolderPlaces</name>
    <message>
        <source>Places</source>
        <translation>Emplacements</translation>
    </message>
</context>
<context>
    <name>FullFieldNote</name>
    <message>
        <source>This field holds only %1 characters.</source>
        <translation>Ce champ ne contient que %1 caractères.</translation>
    </message>
</context>
<context>
    <name>GrowthNote</name>
    <message>
        <source>Showing a long text: %1 %. Ctrl+Z takes a paste back.</source>
        <translation>Un long texte arrive&#xa0;: %1&#xa0;%. Ctrl+Z annule le collage.</translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retour arr.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
</context>
<context>
    <name>LibraryExport</name>
    <message>
        <source>%1 is there already. Nothing was written; --overwrite replaces files.</source>
        <translation>%1 existe déjà. Rien n&apos;a été écrit&#x202f;; --overwrite remplace les fichiers.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more are there already. Nothing was written; --overwrite replaces files.</source>
        <translation>
            <numerusform>%1 et %n autre existent déjà. Rien n&apos;a été écrit&#x202f;; --overwrite remplace les fichiers.</numerusform>
            <numerusform>%1 et %n autres existent déjà. Rien n&apos;a été écrit&#x202f;; --overwrite remplace les fichiers.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exporting %1 of %n file(s)</source>
        <translation>
            <numerusform>Export de %1 sur %n fichier</numerusform>
            <numerusform>Export de %1 sur %n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Échec de l&apos;export&#xa0;: %1</translation>
    </message>
    <message>
        <source>Exported %1 to %2</source>
        <extracomment>%1 is such as &quot;12 pages and 1 picture&quot;, %2 a folder.</extracomment>
        <translation>%1 exportées vers %2</translation>
    </message>
</context>
<context>
    <name>MainViewModel</name>
    <message>
        <source>Delete “%1” for good?</source>
        <translation>Supprimer «&#xa0;%1&#xa0;» pour de bon&#x202f;?</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Spaces</source>
        <translation>Espaces</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>MenuCommand</name>
    <message>
        <source>New Document</source>
        <translation>Nouvelle page</translation>
    </message>
    <message>
        <source>Go to…</source>
        <translation>Aller à…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>Idées</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Travail</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>Pomodoro</source>
        <translation>Pomodoro</translation>
    </message>
    <message>
        <source>Focus mode</source>
        <translation>Concentration</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Export everything…</source>
        <translation>Tout exporter…</translation>
    </message>
    <message>
        <source>Copy page as Markdown</source>
        <translation>Copier en Markdown</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>About Pelko</source>
        <translation>À propos de Pelko</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>App menu</source>
        <translation>Menu de l&apos;application</translation>
    </message>
</context>
<context>
    <name>NavigationButton</name>
    <message>
        <source>Go to</source>
        <translation>Aller à</translation>
    </message>
</context>
<context>
    <name>NavigationFooter</name>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>Nouvelle page</translation>
    </message>
    <message>
        <source>Ctrl N</source>
        <translation>Ctrl N</translation>
    </message>
</context>
<context>
    <name>NavigationOverlay</name>
    <message>
        <source>Go to</source>
        <translation>Aller à</translation>
    </message>
</context>
<context>
    <name>NavigationViewModel</name>
    <message>
        <source>No hits in any space</source>
        <translation>Introuvable, où que ce soit</translation>
    </message>
    <message>
        <source>no places left in %1</source>
        <translation>plus de place dans %1</translation>
    </message>
    <message>
        <source>one place left in %1</source>
        <translation>encore une place dans %1</translation>
    </message>
    <message>
        <source>two places left in %1</source>
        <translation>encore deux places dans %1</translation>
    </message>
    <message>
        <source>three places left in %1</source>
        <translation>encore trois places dans %1</translation>
    </message>
    <message>
        <source>four places left in %1</source>
        <translation>encore quatre places dans %1</translation>
    </message>
    <message>
        <source>five places left in %1</source>
        <translation>encore cinq places dans %1</translation>
    </message>
    <message>
        <source>No pages in %1 yet</source>
        <extracomment>%1 is the name of a space.</extracomment>
        <translation>Pas encore de page dans %1</translation>
    </message>
    <message>
        <source>New Document, %1</source>
        <extracomment>%1 is how many places are left, such as &quot;two places left in Work&quot;.</extracomment>
        <translation>Nouvelle page, %1</translation>
    </message>
    <message numerus="yes">
        <source>The best %1 of %n hit(s), all spaces</source>
        <translation>
            <numerusform>Les %1 meilleurs sur %n résultat, tous espaces</numerusform>
            <numerusform>Les %1 meilleurs sur %n résultats, tous espaces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hit(s), all spaces</source>
        <translation>
            <numerusform>%n résultat, tous espaces</numerusform>
            <numerusform>%n résultats, tous espaces</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NewPageRow</name>
    <message>
        <source>New Document</source>
        <translation>Nouvelle page</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>PageListModel</name>
    <message numerus="yes">
        <source>%n word(s)</source>
        <translation>
            <numerusform>%n mot</numerusform>
            <numerusform>%n mots</numerusform>
        </translation>
    </message>
    <message>
        <source>open</source>
        <comment>the page, after its name</comment>
        <translation>ouverte</translation>
    </message>
    <message>
        <source>spark</source>
        <comment>the page, after its name</comment>
        <translation>étincelle</translation>
    </message>
    <message>
        <source>pinned</source>
        <comment>the page, after its name</comment>
        <translation>épinglée</translation>
    </message>
    <message>
        <source>archived</source>
        <comment>the page, after its name</comment>
        <translation>archivée</translation>
    </message>
</context>
<context>
    <name>PageListRow</name>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer %1</translation>
    </message>
</context>
<context>
    <name>PelkoDocument</name>
    <message>
        <source>MMM d</source>
        <extracomment>Format of a day in a past week: abbreviated month and day. Keep the letters M and d.</extracomment>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>Stands for the title of a page that has none.</extracomment>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>À l&apos;instant</translation>
    </message>
    <message numerus="yes">
        <source>%nm ago</source>
        <comment>minutes</comment>
        <translation>
            <numerusform>il y a %n min</numerusform>
            <numerusform>il y a %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%nh ago</source>
        <comment>hours</comment>
        <translation>
            <numerusform>il y a %n h</numerusform>
            <numerusform>il y a %n h</numerusform>
        </translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message numerus="yes">
        <source>%nd ago</source>
        <comment>days</comment>
        <translation>
            <numerusform>il y a %n j</numerusform>
            <numerusform>il y a %n j</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PomodoroTimer</name>
    <message>
        <source>%1 of focus left</source>
        <translation>encore %1 de concentration</translation>
    </message>
    <message>
        <source>%1 of break left</source>
        <translation>encore %1 de pause</translation>
    </message>
    <message>
        <source>Paused, %1</source>
        <translation>En pause, %1</translation>
    </message>
    <message>
        <source>Ready for %1 of focus</source>
        <translation>Prêt pour %1 de concentration</translation>
    </message>
    <message>
        <source>Ready for %1 of break</source>
        <translation>Prêt pour %1 de pause</translation>
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
        <translation>FOCUS</translation>
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
        <translation>Option inconnue&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Options inconnues&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Il manque une valeur après «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valeur inattendue après «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>QuickAddField</name>
    <message>
        <source>Add task</source>
        <translation>Ajouter une tâche</translation>
    </message>
    <message>
        <source>Add task...</source>
        <translation>Ajouter une tâche...</translation>
    </message>
</context>
<context>
    <name>RemoveTodoButton</name>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Find</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Find a page, a word, a spark</source>
        <translation>Cherche une page, un mot, une étincelle</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
</context>
<context>
    <name>SendButton</name>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
</context>
<context>
    <name>SessionDots</name>
    <message numerus="yes">
        <source>Sessions done: %n</source>
        <translation>
            <numerusform>Séances finies&#xa0;: %n</numerusform>
            <numerusform>Séances finies&#xa0;: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ShortcutSheet</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Getting around</source>
        <translation>Se repérer</translation>
    </message>
    <message>
        <source>Keeping</source>
        <extracomment>Heading of the keys that export, and of those of the program.</extracomment>
        <translation>Garder</translation>
    </message>
    <message>
        <source>At the start of a line</source>
        <translation>En début de ligne</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Citation</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>Checklist</source>
        <translation>Liste à cocher</translation>
    </message>
</context>
<context>
    <name>SingleInstance</name>
    <message>
        <source>Another Pelko has these documents open and does not answer.</source>
        <translation>Un autre Pelko tient ces pages ouvertes et ne répond pas.</translation>
    </message>
    <message>
        <source>The documents cannot be locked (%1): do not open them in another Pelko meanwhile.</source>
        <translation>Impossible de verrouiller les pages (%1)&#xa0;: ne les ouvre pas dans un autre Pelko en attendant.</translation>
    </message>
    <message>
        <source>The running Pelko does not answer.</source>
        <translation>Le Pelko en cours ne répond pas.</translation>
    </message>
</context>
<context>
    <name>Space</name>
    <message>
        <source>Ideas</source>
        <translation>Idées</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Travail</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
</context>
<context>
    <name>SpaceTab</name>
    <message numerus="yes">
        <source>%n page(s), five places</source>
        <translation>
            <numerusform>%n page, cinq places</numerusform>
            <numerusform>%n pages, cinq places</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SpaceTabs</name>
    <message>
        <source>Spaces</source>
        <translation>Espaces</translation>
    </message>
    <message>
        <source>Ctrl %1</source>
        <translation>Ctrl %1</translation>
    </message>
</context>
<context>
    <name>SparkCard</name>
    <message>
        <source>Empty spark</source>
        <translation>Étincelle vide</translation>
    </message>
</context>
<context>
    <name>SparkMenu</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>SparksSection</name>
    <message>
        <source>RECENT</source>
        <translation>RÉCENTES</translation>
    </message>
    <message numerus="yes">
        <source>Recent sparks: %n</source>
        <translation>
            <numerusform>Étincelles récentes&#xa0;: %n</numerusform>
            <numerusform>Étincelles récentes&#xa0;: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Sparks you capture appear here.</source>
        <translation>Tes étincelles apparaîtront ici.</translation>
    </message>
</context>
<context>
    <name>StartFailure</name>
    <message>
        <source>Pelko cannot start:</source>
        <translation>Pelko ne peut pas démarrer&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>Pelko cannot start. It needs these QML modules, which are not installed: %1.</source>
        <extracomment>The number is not told: %1 lists the modules.</extracomment>
        <translation>
            <numerusform>Pelko ne peut pas démarrer. Il lui faut le module QML %1, qui n&apos;est pas installé.</numerusform>
            <numerusform>Pelko ne peut pas démarrer. Il lui faut ces modules QML, qui ne sont pas installés&#xa0;: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StickyHeader</name>
    <message>
        <source>Sticky</source>
        <translation>Pense-bête</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>Failed to load your documents.</source>
        <translation>Tes pages n&apos;ont pas pu être chargées.</translation>
    </message>
    <message>
        <source>Save failed: %1</source>
        <translation>Échec de l&apos;enregistrement&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>StreakCard</name>
    <message numerus="yes">
        <source>Streak: %n day(s)</source>
        <translation>
            <numerusform>Série&#xa0;: %n jour</numerusform>
            <numerusform>Série&#xa0;: %n jours</numerusform>
        </translation>
    </message>
    <message>
        <source>STREAK</source>
        <translation>SÉRIE</translation>
    </message>
</context>
<context>
    <name>TaskList</name>
    <message>
        <source>Tasks</source>
        <translation>Tâches</translation>
    </message>
</context>
<context>
    <name>TaskToggle</name>
    <message>
        <source>To do...</source>
        <translation>À faire...</translation>
    </message>
</context>
<context>
    <name>TasksCard</name>
    <message>
        <source>TASKS</source>
        <translation>TÂCHES</translation>
    </message>
    <message>
        <source>No tasks yet.</source>
        <translation>Rien à faire encore.</translation>
    </message>
</context>
<context>
    <name>TasksPanelToggleButton</name>
    <message>
        <source>Tasks panel</source>
        <translation>Volet des tâches</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tâches</translation>
    </message>
</context>
<context>
    <name>TasksPanelView</name>
    <message>
        <source>Tasks panel</source>
        <translation>Volet des tâches</translation>
    </message>
</context>
<context>
    <name>TasksPanelViewModel</name>
    <message numerus="yes">
        <source>day(s)</source>
        <extracomment>Stands behind the number of the streak.</extracomment>
        <translation>
            <numerusform>jour</numerusform>
            <numerusform>jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n words · %1</source>
        <extracomment>Length and age of the open page, such as &quot;107 words · 5m ago&quot;.</extracomment>
        <translation>
            <numerusform>%n mot · %1</numerusform>
            <numerusform>%n mots · %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TextBlock</name>
    <message numerus="yes">
        <source>This text is too long to be shown as a whole. %Ln more character(s) are kept.</source>
        <translation>
            <numerusform>Ce texte est trop long pour être montré en entier. %Ln caractère de plus est gardé.</numerusform>
            <numerusform>Ce texte est trop long pour être montré en entier. %Ln caractères de plus sont gardés.</numerusform>
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
        <translation>Lancer</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>À zéro</translation>
    </message>
</context>
<context>
    <name>TimersViewModel</name>
    <message>
        <source>Timer, %1</source>
        <translation>Minuteur, %1</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Minuteur</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>TitleCapsule</name>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
</context>
<context>
    <name>TodoRow</name>
    <message>
        <source>To do...</source>
        <translation>À faire...</translation>
    </message>
</context>
<context>
    <name>TodoToggle</name>
    <message>
        <source>To do...</source>
        <translation>À faire...</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Open Pelko</source>
        <translation>Ouvrir Pelko</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Lancer</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Remettre à zéro</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>No session done yet</source>
        <translation>Aucune séance pour le moment</translation>
    </message>
    <message numerus="yes">
        <source>%n session(s) done</source>
        <translation>
            <numerusform>%n séance finie</numerusform>
            <numerusform>%n séances finies</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedAlerts</name>
    <message>
        <source>Got it</source>
        <translation>Compris</translation>
    </message>
    <message>
        <source>Your last changes are not saved.</source>
        <translation>Tes derniers changements ne sont pas enregistrés.</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Rester</translation>
    </message>
    <message>
        <source>Quit and lose them</source>
        <translation>Quitter et les perdre</translation>
    </message>
</context>
<context>
    <name>UpcomingEvents</name>
    <message>
        <source>Untitled</source>
        <comment>an appointment</comment>
        <translation>Sans titre</translation>
    </message>
</context>
<context>
    <name>WordGoalCard</name>
    <message>
        <source>DAILY GOAL</source>
        <translation>OBJECTIF DU JOUR</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n word(s)</source>
        <translation>
            <numerusform>%1 sur %n mot</numerusform>
            <numerusform>%1 sur %n mots</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Pelko: Could not locate Application Support directory.</source>
        <translation>Pelko&#xa0;: impossible de trouver le dossier des données.</translation>
    </message>
    <message>
        <source>Pelko is not running.</source>
        <translation>Pelko n&apos;est pas lancé.</translation>
    </message>
</context>
</TS>
