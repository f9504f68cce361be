<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en_US">
<context>
    <name>ExistingFiles</name>
    <message>
        <source>Replace Existing Files?</source>
        <translation>Sostituire i file esistenti?</translation>
    </message>
    <message>
        <source>The folder “%@” already contains the items below. If you replace them, their current contents are lost.</source>
        <extracomment>%@ is the name of a folder.</extracomment>
        <translation>La cartella «%@» contiene già gli elementi elencati sotto. Se li sostituisci, il loro contenuto attuale andrà perso.</translation>
    </message>
    <message>
        <source>Existing items</source>
        <translation>Elementi esistenti</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnulla</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Sostituisci</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opia</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Esportazione</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Avanzamento dell’esportazione</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Interrompi</translation>
    </message>
</context>
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
