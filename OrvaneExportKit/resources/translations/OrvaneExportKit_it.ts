<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en_US">
<context>
    <name>FileNameChecks</name>
    <message>
        <source>The name is empty.</source>
        <translation>Il nome è vuoto.</translation>
    </message>
    <message>
        <source>The name holds a control character.</source>
        <translation>Il nome contiene un carattere di controllo.</translation>
    </message>
    <message>
        <source>The name holds the character %1, which Windows reserves.</source>
        <extracomment>%1 is one character.</extracomment>
        <translation>Il nome contiene il carattere %1, riservato da Windows.</translation>
    </message>
    <message>
        <source>The name stands for a device on Windows.</source>
        <translation>Il nome indica un dispositivo in Windows.</translation>
    </message>
    <message>
        <source>The name ends with a dot or a blank.</source>
        <translation>Il nome termina con un punto o uno spazio.</translation>
    </message>
    <message>
        <source>The name is longer than 255 bytes.</source>
        <translation>Il nome supera i 255 byte.</translation>
    </message>
    <message>
        <source>%1 documents would get this name.</source>
        <extracomment>%1 is a number, 2 or more.</extracomment>
        <translation>%1 documenti riceverebbero questo nome.</translation>
    </message>
    <message>
        <source>A folder with this name exists.</source>
        <translation>Esiste già una cartella con questo nome.</translation>
    </message>
    <message>
        <source>A file with this name exists.</source>
        <translation>Esiste già un file con questo nome.</translation>
    </message>
</context>
<context>
    <name>KZPageView</name>
    <message>
        <source>Page preview</source>
        <extracomment>What a screen reader calls the picture of a page.</extracomment>
        <translation>Anteprima della pagina</translation>
    </message>
    <message>
        <source>Page %1; margins: top %2, left %3, right %4, bottom %5</source>
        <extracomment>Read out by a screen reader. %1 is the size of the paper as in &quot;21.00 cm x 29.70 cm&quot;, the others are lengths as in &quot;2.54 cm&quot;.</extracomment>
        <translation>Pagina %1; margini: superiore %2, sinistro %3, destro %4, inferiore %5</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Level</source>
        <extracomment>Stands before the number of an outline level, as in &quot;Level 2 (##)&quot;.</extracomment>
        <translation>Livello</translation>
    </message>
    <message>
        <source>ProcDoc</source>
        <extracomment>&quot;Processing document&quot;: stands in the progress sheet before a colon and the document&apos;s name.</extracomment>
        <translation>Elaborazione del documento</translation>
    </message>
</context>
</TS>
