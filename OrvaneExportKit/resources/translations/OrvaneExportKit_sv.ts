<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en_US">
<context>
    <name>ExistingFiles</name>
    <message>
        <source>Replace Existing Files?</source>
        <translation>Ersätta befintliga filer?</translation>
    </message>
    <message>
        <source>The folder “%@” already contains the items below. If you replace them, their current contents are lost.</source>
        <extracomment>%@ is the name of a folder.</extracomment>
        <translation>Mappen ”%@” innehåller redan objekten nedan. Om du ersätter dem går deras nuvarande innehåll förlorat.</translation>
    </message>
    <message>
        <source>Existing items</source>
        <translation>Befintliga objekt</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Avbryt</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersätt</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>K&amp;opiera</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Exportera</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Exportens förlopp</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Avbryt</translation>
    </message>
</context>
<context>
    <name>FileNameChecks</name>
    <message>
        <source>The name is empty.</source>
        <translation>Namnet är tomt.</translation>
    </message>
    <message>
        <source>The name holds a control character.</source>
        <translation>Namnet innehåller ett styrtecken.</translation>
    </message>
    <message>
        <source>The name holds the character %1, which Windows reserves.</source>
        <extracomment>%1 is one character.</extracomment>
        <translation>Namnet innehåller tecknet %1, som är reserverat i Windows.</translation>
    </message>
    <message>
        <source>The name stands for a device on Windows.</source>
        <translation>Namnet betecknar en enhet i Windows.</translation>
    </message>
    <message>
        <source>The name ends with a dot or a blank.</source>
        <translation>Namnet slutar med en punkt eller ett blanksteg.</translation>
    </message>
    <message>
        <source>The name is longer than 255 bytes.</source>
        <translation>Namnet är längre än 255 byte.</translation>
    </message>
    <message>
        <source>%1 documents would get this name.</source>
        <extracomment>%1 is a number, 2 or more.</extracomment>
        <translation>%1 dokument skulle få det här namnet.</translation>
    </message>
    <message>
        <source>A folder with this name exists.</source>
        <translation>Det finns redan en mapp med det här namnet.</translation>
    </message>
    <message>
        <source>A file with this name exists.</source>
        <translation>Det finns redan en fil med det här namnet.</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Level</source>
        <extracomment>Stands before the number of an outline level, as in &quot;Level 2 (##)&quot;.</extracomment>
        <translation>Nivå</translation>
    </message>
    <message>
        <source>ProcDoc</source>
        <extracomment>&quot;Processing document&quot;: stands in the progress sheet before a colon and the document&apos;s name.</extracomment>
        <translation>Bearbetar dokument</translation>
    </message>
</context>
</TS>
