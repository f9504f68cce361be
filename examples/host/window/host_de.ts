<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Messages</name>
    <message>
        <source>%1 can&apos;t be written: %2; see to that and try again</source>
        <translation>%1 kann nicht geschrieben werden: %2; beheben Sie das, und versuchen Sie es erneut</translation>
    </message>
    <message>
        <source>%1 is no UTF-8 text from byte %2 on (%3); save the file as UTF-8</source>
        <translation>%1 ist ab Byte %2 (%3) kein UTF-8-Text; speichern Sie die Datei als UTF-8</translation>
    </message>
    <message>
        <source>%1 is no keyed archive of a text: %2; save the document again</source>
        <translation>%1 ist kein Archiv eines Textes: %2; speichern Sie das Dokument noch einmal</translation>
    </message>
    <message>
        <source>%1 holds no text but a value of type %2; save the document as a text</source>
        <translation>%1 enthält keinen Text, sondern einen Wert vom Typ %2; speichern Sie das Dokument als Text</translation>
    </message>
    <message>
        <source>the plug-in %1 failed on %2: %3; change the document or the plug-in&apos;s choices, and export again</source>
        <translation>das Plug-in %1 scheiterte an %2: %3; ändern Sie das Dokument oder die Einstellungen des Plug-ins, und exportieren Sie erneut</translation>
    </message>
    <message>
        <source>the names of its files</source>
        <translation>den Namen seiner Dateien</translation>
    </message>
    <message>
        <source>it does not say why</source>
        <translation>es sagt nicht, warum</translation>
    </message>
    <message>
        <source>the document %1</source>
        <translation>dem Dokument %1</translation>
    </message>
    <message>
        <source>the file %1</source>
        <translation>der Datei %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2; check that it is there and that you may read it</source>
        <translation>%1 kann nicht gelesen werden: %2; prüfen Sie, ob es vorhanden ist und ob Sie es lesen dürfen</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>%1 needs a &quot;%2&quot; with a string as its value</source>
        <translation>%1 braucht ein „%2“ mit einer Zeichenkette als Wert</translation>
    </message>
    <message>
        <source>%1 is no valid JSON: %2: %3; correct it there</source>
        <translation>%1 ist kein gültiges JSON: %2: %3; berichtigen Sie es dort</translation>
    </message>
    <message>
        <source>%1 needs an object, {...}, as its content</source>
        <translation>%1 braucht ein Objekt, {...}, als Inhalt</translation>
    </message>
    <message>
        <source>%1 needs a &quot;documents&quot; with a list, [...], as its value</source>
        <translation>%1 braucht ein „documents“ mit einer Liste, [...], als Wert</translation>
    </message>
    <message>
        <source>document %1 in %2</source>
        <translation>Dokument %1 in %2</translation>
    </message>
    <message>
        <source>%1 must be an object, {...}</source>
        <translation>%1 muss ein Objekt sein, {...}</translation>
    </message>
    <message>
        <source>%1 names the file %2; give a path inside the manuscript&apos;s folder</source>
        <translation>%1 nennt die Datei %2; geben Sie einen Pfad innerhalb des Manuskriptordners an</translation>
    </message>
    <message>
        <source>there is no manuscript folder %1; check the path</source>
        <translation>es gibt keinen Manuskriptordner %1; prüfen Sie den Pfad</translation>
    </message>
    <message>
        <source>%1 is no folder; give the folder that holds manuscript.json</source>
        <translation>%1 ist kein Ordner; wählen Sie den Ordner, der manuscript.json enthält</translation>
    </message>
    <message>
        <source>there is no manuscript.json in %1; give the folder that holds it</source>
        <translation>in %1 ist kein manuscript.json; wählen Sie den Ordner, der es enthält</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>the destination folder %1 does not exist; make it first</source>
        <translation>den Zielordner %1 gibt es nicht; legen Sie ihn zuerst an</translation>
    </message>
    <message>
        <source>you may not write into the destination folder %1; choose another one</source>
        <translation>Sie dürfen nicht in den Zielordner %1 schreiben; wählen Sie einen anderen</translation>
    </message>
    <message>
        <source>document %1, %2</source>
        <translation>Dokument %1, %2</translation>
    </message>
    <message>
        <source>the plug-in&apos;s own file</source>
        <translation>die eigene Datei des Plug-ins</translation>
    </message>
    <message>
        <source>several documents would become the same file; put &lt;1&gt; into the pattern:</source>
        <translation>mehrere Dokumente würden zu derselben Datei; nehmen Sie &lt;1&gt; in das Muster auf:</translation>
    </message>
    <message>
        <source>folders stand where files would go; choose another destination or pattern:</source>
        <translation>wo Dateien hin sollen, stehen Ordner; wählen Sie ein anderes Ziel oder Muster:</translation>
    </message>
    <message>
        <source>the export would replace the manuscript itself; choose another destination:</source>
        <translation>der Export würde das Manuskript selbst ersetzen; wählen Sie ein anderes Ziel:</translation>
    </message>
    <message>
        <source>it is a Qt plug-in of another kind, for %1, no export plug-in</source>
        <translation>es ist ein Qt-Plug-in anderer Art, für %1, kein Export-Plug-in</translation>
    </message>
    <message>
        <source>it was built for version %1 of the plug-in interface, this program has version %2; rebuild it against the kit that this program came with</source>
        <translation>es wurde für Version %1 der Plug-in-Schnittstelle gebaut, dieses Programm hat Version %2; bauen Sie es neu mit dem Baukasten, der zu diesem Programm gehört</translation>
    </message>
    <message>
        <source>it is no Qt plug-in: %1</source>
        <translation>es ist kein Qt-Plug-in: %1</translation>
    </message>
    <message>
        <source>its class %1 does not offer the interface that its metadata names</source>
        <translation>seine Klasse %1 bietet die Schnittstelle nicht, die seine Metadaten nennen</translation>
    </message>
    <message>
        <source>there is no plug-in folder %1; name one by --plugin-folder or ORVANE_PLUGIN_PATH</source>
        <translation>es gibt keinen Plug-in-Ordner %1; nennen Sie einen mit --plugin-folder oder ORVANE_PLUGIN_PATH</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>there is no plug-in %1 in the folder %2; it holds: %3</source>
        <translation>im Ordner %2 ist kein Plug-in %1; er enthält: %3</translation>
    </message>
    <message>
        <source>it failed while it was loaded</source>
        <translation>es scheiterte beim Laden</translation>
    </message>
    <message>
        <source>the folder holds another plug-in of the name %1</source>
        <translation>der Ordner enthält ein anderes Plug-in mit dem Namen %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used: %2</source>
        <translation>%1 kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>the settings can&apos;t be saved: %1</source>
        <translation>die Einstellungen können nicht gesichert werden: %1</translation>
    </message>
</context>
<context>
    <name>host::EditorPane</name>
    <message>
        <source>Text of the document</source>
        <translation>Text des Dokuments</translation>
    </message>
    <message>
        <source>This document is an archive with text attributes. It is shown without them and can&apos;t be edited here; an export uses all of it.</source>
        <translation>Dieses Dokument ist ein Archiv mit Textattributen. Es wird ohne sie angezeigt und kann hier nicht bearbeitet werden; ein Export verwendet alles davon.</translation>
    </message>
</context>
<context>
    <name>host::ExportDialog</name>
    <message>
        <source>&amp;Underscores in place of spaces</source>
        <translation>&amp;Unterstriche statt Leerzeichen</translation>
    </message>
    <message>
        <source>Export “%1”</source>
        <translation>„%1“ exportieren</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen …</translation>
    </message>
    <message>
        <source>File names</source>
        <translation>Dateinamen</translation>
    </message>
    <message>
        <source>Type the first letters of a token, or press the Down key for all tokens</source>
        <translation>Geben Sie die ersten Buchstaben eines Platzhalters ein, oder drücken Sie die Taste Pfeil unten für alle Platzhalter</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>Export Name</source>
        <translation>Exportname</translation>
    </message>
    <message>
        <source>Files of the export</source>
        <translation>Dateien des Exports</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>File &amp;names:</source>
        <translation>Datei&amp;namen:</translation>
    </message>
    <message>
        <source>Choose the Folder for the Files</source>
        <translation>Ordner für die Dateien wählen</translation>
    </message>
    <message>
        <source>Choose a folder for the files.</source>
        <translation>Wählen Sie einen Ordner für die Dateien.</translation>
    </message>
    <message>
        <source>Several documents would become the same file. Add “%1” to the file names.</source>
        <translation>Mehrere Dokumente würden zu derselben Datei. Nehmen Sie „%1“ in die Dateinamen auf.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) will be written.</source>
        <translation>
            <numerusform>%n Datei wird geschrieben.</numerusform>
            <numerusform>%n Dateien werden geschrieben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them exist(s) already.</source>
        <translation>
            <numerusform>%n davon gibt es schon.</numerusform>
            <numerusform>%n davon gibt es schon.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Some systems refuse %n of the names.</source>
        <translation>
            <numerusform>Manche Systeme lehnen %n der Namen ab.</numerusform>
            <numerusform>Manche Systeme lehnen %n der Namen ab.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::ManuscriptModel</name>
    <message>
        <source>%1, changed</source>
        <translation>%1, geändert</translation>
    </message>
    <message>
        <source>Changed and not saved yet</source>
        <translation>Geändert und noch nicht gesichert</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
</context>
<context>
    <name>host::ManuscriptWindow</name>
    <message>
        <source>Open Manuscript</source>
        <translation>Manuskript öffnen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sichern</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Next Document</source>
        <translation>&amp;Nächstes Dokument</translation>
    </message>
    <message>
        <source>&amp;Previous Document</source>
        <translation>&amp;Voriges Dokument</translation>
    </message>
    <message>
        <source>List of &amp;Documents</source>
        <translation>&amp;Dokumentliste</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>V&amp;orschau</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Dark Colours</source>
        <translation>&amp;Dunkle Farben</translation>
    </message>
    <message>
        <source>Documents of the manuscript</source>
        <translation>Dokumente des Manuskripts</translation>
    </message>
    <message>
        <source>Manuscripts</source>
        <translation>Manuskripte</translation>
    </message>
    <message>
        <source>No manuscripts yet</source>
        <translation>Noch keine Manuskripte</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Ungesicherte Änderungen</translation>
    </message>
    <message>
        <source>Save the changes in “%1”?</source>
        <translation>Änderungen in „%1“ sichern?</translation>
    </message>
    <message>
        <source>What is not saved is lost.</source>
        <translation>Was nicht gesichert wird, geht verloren.</translation>
    </message>
    <message>
        <source>There is no plug-in to export with.</source>
        <translation>Es gibt kein Plug-in für einen Export.</translation>
    </message>
    <message>
        <source>Nothing was exported, as the files are not to be replaced.</source>
        <translation>Es wurde nichts exportiert, da die Dateien nicht ersetzt werden sollen.</translation>
    </message>
    <message numerus="yes">
        <source>The export ended after %n file(s).</source>
        <translation>
            <numerusform>Der Export endete nach %n Datei.</numerusform>
            <numerusform>Der Export endete nach %n Dateien.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The export was aborted after %n file(s).</source>
        <translation>
            <numerusform>Der Export wurde nach %n Datei abgebrochen.</numerusform>
            <numerusform>Der Export wurde nach %n Dateien abgebrochen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) exported to “%1”.</source>
        <translation>
            <numerusform>%n Datei nach „%1“ exportiert.</numerusform>
            <numerusform>%n Dateien nach „%1“ exportiert.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::OutputNamesModel</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>host::PreviewPane</name>
    <message>
        <source>Preview of the file</source>
        <translation>Vorschau der Datei</translation>
    </message>
    <message>
        <source>There is no plug-in for a preview.</source>
        <translation>Es gibt kein Plug-in für eine Vorschau.</translation>
    </message>
    <message>
        <source>The preview ends after %1 characters.</source>
        <translation>Die Vorschau endet nach %1 Zeichen.</translation>
    </message>
    <message>
        <source>Preview &amp;as:</source>
        <translation>Vorschau al&amp;s:</translation>
    </message>
    <message>
        <source>Sou&amp;rce</source>
        <translation>&amp;Quelltext</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Vorschau der Seite</translation>
    </message>
</context>
<context>
    <name>host::ResultBar</name>
    <message>
        <source>Sho&amp;w in Folder</source>
        <translation>&amp;Im Ordner zeigen</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>Ausb&amp;lenden</translation>
    </message>
</context>
<context>
    <name>host::SettingsPanel</name>
    <message>
        <source>Settings of the format</source>
        <translation>Einstellungen des Formats</translation>
    </message>
    <message>
        <source>This format has no settings to choose here.</source>
        <translation>Dieses Format hat keine Einstellungen, die hier zu wählen sind.</translation>
    </message>
    <message>
        <source>The settings of this format can&apos;t be shown: %1</source>
        <translation>Die Einstellungen dieses Formats können nicht angezeigt werden: %1</translation>
    </message>
</context>
<context>
    <name>host::WelcomePage</name>
    <message>
        <source>Write a manuscript and export it</source>
        <translation>Ein Manuskript schreiben und exportieren</translation>
    </message>
    <message>
        <source>A manuscript is a folder with its documents and a file manuscript.json.</source>
        <translation>Ein Manuskript ist ein Ordner mit seinen Dokumenten und einer Datei manuscript.json.</translation>
    </message>
    <message>
        <source>&amp;Open a Manuscript…</source>
        <translation>Ein Manuskript ö&amp;ffnen …</translation>
    </message>
</context>
</TS>
