<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
<context>
    <name>ExistingFiles</name>
    <message>
        <source>Replace Existing Files?</source>
        <translation>Vorhandene Dateien ersetzen?</translation>
    </message>
    <message>
        <source>The folder “%@” already contains the items below. If you replace them, their current contents are lost.</source>
        <extracomment>%@ is the name of a folder.</extracomment>
        <translation>Der Ordner „%@“ enthält bereits die unten stehenden Objekte. Wenn Sie sie ersetzen, geht ihr bisheriger Inhalt verloren.</translation>
    </message>
    <message>
        <source>Existing items</source>
        <translation>Vorhandene Objekte</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>K&amp;opieren</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Fortschritt des Exports</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>FileNameChecks</name>
    <message>
        <source>The name is empty.</source>
        <translation>Der Name ist leer.</translation>
    </message>
    <message>
        <source>The name holds a control character.</source>
        <translation>Der Name enthält ein Steuerzeichen.</translation>
    </message>
    <message>
        <source>The name holds the character %1, which Windows reserves.</source>
        <extracomment>%1 is one character.</extracomment>
        <translation>Der Name enthält das Zeichen %1, das unter Windows reserviert ist.</translation>
    </message>
    <message>
        <source>The name stands for a device on Windows.</source>
        <translation>Der Name bezeichnet unter Windows ein Gerät.</translation>
    </message>
    <message>
        <source>The name ends with a dot or a blank.</source>
        <translation>Der Name endet mit einem Punkt oder einem Leerzeichen.</translation>
    </message>
    <message>
        <source>The name is longer than 255 bytes.</source>
        <translation>Der Name ist länger als 255 Byte.</translation>
    </message>
    <message>
        <source>%1 documents would get this name.</source>
        <extracomment>%1 is a number, 2 or more.</extracomment>
        <translation>%1 Dokumente würden diesen Namen erhalten.</translation>
    </message>
    <message>
        <source>A folder with this name exists.</source>
        <translation>Ein Ordner mit diesem Namen ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>A file with this name exists.</source>
        <translation>Eine Datei mit diesem Namen ist bereits vorhanden.</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Level</source>
        <extracomment>Stands before the number of an outline level, as in &quot;Level 2 (##)&quot;.</extracomment>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>ProcDoc</source>
        <extracomment>&quot;Processing document&quot;: stands in the progress sheet before a colon and the document&apos;s name.</extracomment>
        <translation>Dokument wird verarbeitet</translation>
    </message>
</context>
</TS>
