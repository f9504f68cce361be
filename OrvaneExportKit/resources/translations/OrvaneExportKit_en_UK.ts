<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en_US">
<context>
    <name>ExistingFiles</name>
    <message>
        <source>Replace Existing Files?</source>
        <translation>Replace Existing Files?</translation>
    </message>
    <message>
        <source>The folder “%@” already contains the items below. If you replace them, their current contents are lost.</source>
        <extracomment>%@ is the name of a folder.</extracomment>
        <translation>The folder ‘%@’ already contains the items below. If you replace them, their current contents are lost.</translation>
    </message>
    <message>
        <source>Existing items</source>
        <translation>Existing items</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Replace</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opy</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Progress of the export</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abort</translation>
    </message>
</context>
<context>
    <name>FileNameChecks</name>
    <message>
        <source>The name is empty.</source>
        <translation>The name is empty.</translation>
    </message>
    <message>
        <source>The name holds a control character.</source>
        <translation>The name holds a control character.</translation>
    </message>
    <message>
        <source>The name holds the character %1, which Windows reserves.</source>
        <extracomment>%1 is one character.</extracomment>
        <translation>The name holds the character %1, which Windows reserves.</translation>
    </message>
    <message>
        <source>The name stands for a device on Windows.</source>
        <translation>The name stands for a device on Windows.</translation>
    </message>
    <message>
        <source>The name ends with a dot or a blank.</source>
        <translation>The name ends with a full stop or a space.</translation>
    </message>
    <message>
        <source>The name is longer than 255 bytes.</source>
        <translation>The name is longer than 255 bytes.</translation>
    </message>
    <message>
        <source>%1 documents would get this name.</source>
        <extracomment>%1 is a number, 2 or more.</extracomment>
        <translation>%1 documents would get this name.</translation>
    </message>
    <message>
        <source>A folder with this name exists.</source>
        <translation>A folder with this name exists.</translation>
    </message>
    <message>
        <source>A file with this name exists.</source>
        <translation>A file with this name exists.</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Level</source>
        <extracomment>Stands before the number of an outline level, as in &quot;Level 2 (##)&quot;.</extracomment>
        <translation>Level</translation>
    </message>
    <message>
        <source>ProcDoc</source>
        <extracomment>&quot;Processing document&quot;: stands in the progress sheet before a colon and the document&apos;s name.</extracomment>
        <translation>Processing document</translation>
    </message>
</context>
</TS>
