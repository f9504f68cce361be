<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Panel</name>
    <message>
        <source>File &amp;names:</source>
        <translation>Datei&amp;namen:</translation>
    </message>
    <message>
        <source>Type the first letters of a token, or press the Down key for all tokens</source>
        <translation>Geben Sie die ersten Buchstaben eines Platzhalters ein, oder drücken Sie die Taste Pfeil unten für alle Platzhalter</translation>
    </message>
    <message>
        <source>&amp;Underscores in place of spaces</source>
        <translation>&amp;Unterstriche statt Leerzeichen</translation>
    </message>
    <message>
        <source>&amp;Quotation marks:</source>
        <translation>&amp;Anführungszeichen:</translation>
    </message>
    <message>
        <source>American</source>
        <translation>Amerikanisch</translation>
    </message>
    <message>
        <source>British</source>
        <translation>Britisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Swiss</source>
        <translation>Schweizerisch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Schwedisch</translation>
    </message>
    <message>
        <source>Empty lines:</source>
        <translation>Leerzeilen:</translation>
    </message>
    <message>
        <source>&amp;Between paragraphs</source>
        <translation>&amp;Zwischen Absätzen</translation>
    </message>
    <message>
        <source>Before &amp;headings only</source>
        <translation>Nur vor Ü&amp;berschriften</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>Line hei&amp;ght in tenths:</source>
        <translation>Zeilen&amp;höhe in Zehnteln:</translation>
    </message>
    <message>
        <source>Line height in tenths</source>
        <translation>Zeilenhöhe in Zehnteln</translation>
    </message>
    <message>
        <source>Line &amp;length:</source>
        <translation>Zeilen&amp;länge:</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Unbegrenzt</translation>
    </message>
    <message>
        <source> characters</source>
        <translation> Zeichen</translation>
    </message>
    <message>
        <source>En&amp;coding:</source>
        <translation>Ko&amp;dierung:</translation>
    </message>
    <message>
        <source>F&amp;irst lines:</source>
        <translation>&amp;Erste Zeilen:</translation>
    </message>
    <message>
        <source>&amp;Top margin:</source>
        <translation>Rand &amp;oben:</translation>
    </message>
    <message>
        <source>Botto&amp;m margin:</source>
        <translation>Rand un&amp;ten:</translation>
    </message>
    <message>
        <source>L&amp;eft margin:</source>
        <translation>Rand l&amp;inks:</translation>
    </message>
    <message>
        <source>&amp;Right margin:</source>
        <translation>Rand &amp;rechts:</translation>
    </message>
    <message>
        <source>Export Settings</source>
        <translation>Exporteinstellungen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Schrift:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>Other size</source>
        <translation>Andere Größe</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>US-Letter</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>US-Legal</translation>
    </message>
    <message>
        <source>Page preview</source>
        <translation>Seitenvorschau</translation>
    </message>
    <message>
        <source>Empty lines between paragraphs</source>
        <translation>Leerzeilen zwischen Absätzen</translation>
    </message>
    <message>
        <source>Empty lines before headings only</source>
        <translation>Leerzeilen nur vor Überschriften</translation>
    </message>
    <message>
        <source>No empty lines</source>
        <translation>Keine Leerzeilen</translation>
    </message>
    <message>
        <source>Text at the start of every file</source>
        <translation>Text am Anfang jeder Datei</translation>
    </message>
</context>
<context>
    <name>PanelOwner</name>
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
        <translation>Name des Exports</translation>
    </message>
</context>
</TS>
