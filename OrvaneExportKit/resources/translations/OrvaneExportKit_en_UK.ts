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
        <source>Items that exist already: %1 of %2</source>
        <extracomment>Numbers of files and folders.</extracomment>
        <translation>Items that exist already: %1 of %2</translation>
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
    <name>KZFontNameTextField</name>
    <message>
        <source>Double-click or press Space to choose a font</source>
        <extracomment>Tool tip of a field that shows a font.</extracomment>
        <translation>Double-click or press Space to choose a font</translation>
    </message>
    <message>
        <source>Choose a font</source>
        <extracomment>What a screen reader calls a button, and its tool tip.</extracomment>
        <translation>Choose a font</translation>
    </message>
    <message>
        <source>not installed</source>
        <extracomment>Stands in a field, behind the name of a font.</extracomment>
        <translation>not installed</translation>
    </message>
    <message>
        <source>This font is not installed.</source>
        <extracomment>In a tool tip.</extracomment>
        <translation>This font is not installed.</translation>
    </message>
</context>
<context>
    <name>KZPageView</name>
    <message>
        <source>Page preview</source>
        <extracomment>What a screen reader calls the picture of a page.</extracomment>
        <translation>Page preview</translation>
    </message>
    <message>
        <source>Page %1; margins: top %2, left %3, right %4, bottom %5</source>
        <extracomment>Read out by a screen reader. %1 is the size of the paper as in &quot;21.00 cm x 29.70 cm&quot;, the others are lengths as in &quot;2.54 cm&quot;.</extracomment>
        <translation>Page %1; margins: top %2, left %3, right %4, bottom %5</translation>
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
<context>
    <name>windowing::DictionaryTable</name>
    <message>
        <source>&amp;Add</source>
        <extracomment>A button below a table: adds a row.</extracomment>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Move &amp;Up</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Move Do&amp;wn</translation>
    </message>
</context>
<context>
    <name>windowing::FontPanel</name>
    <message>
        <source>Fonts</source>
        <extracomment>Title of the panel in which the user chooses a font.</extracomment>
        <translation>Fonts</translation>
    </message>
    <message>
        <source>Sample</source>
        <extracomment>What a screen reader calls the sample of the chosen font.</extracomment>
        <translation>Sample</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Family:</translation>
    </message>
    <message>
        <source>&amp;Style:</source>
        <extracomment>Of a font, such as bold.</extracomment>
        <translation>&amp;Style:</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <extracomment>Of a font.</extracomment>
        <translation>Si&amp;ze:</translation>
    </message>
    <message>
        <source> pt</source>
        <extracomment>Points, after the size of a font.</extracomment>
        <translation> pt</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Underline</translation>
    </message>
    <message>
        <source>Stri&amp;kethrough</source>
        <translation>Stri&amp;kethrough</translation>
    </message>
    <message>
        <source>&amp;Text color:</source>
        <extracomment>Label of a check box; the color is beside it.</extracomment>
        <translation>&amp;Text colour:</translation>
    </message>
    <message>
        <source>Choose the text color</source>
        <extracomment>What a screen reader calls a button, and title of what it opens.</extracomment>
        <translation>Choose the text colour</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <extracomment>Label of a check box; the background color is beside it.</extracomment>
        <translation>&amp;Background:</translation>
    </message>
    <message>
        <source>Choose the background color</source>
        <extracomment>What a screen reader calls a button, and title of what it opens.</extracomment>
        <translation>Choose the background colour</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <extracomment>A button: takes back the last change.</extracomment>
        <translation>U&amp;ndo</translation>
    </message>
    <message>
        <source>Takes back the last change</source>
        <extracomment>Tool tip of a button.</extracomment>
        <translation>Takes back the last change</translation>
    </message>
    <message>
        <source>The font “%1” is not installed. Another one stands in for it here.</source>
        <extracomment>%1 is the name of a family of fonts.</extracomment>
        <translation>The font “%1” is not installed. Another one stands in for it here.</translation>
    </message>
</context>
<context>
    <name>windowing::TokenEditor</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Select &amp;All</translation>
    </message>
    <message>
        <source>&amp;Insert Token</source>
        <extracomment>An entry of a menu, with a menu of its own that lists the tokens. A token stands for something that is put in later, such as the name of a document.</extracomment>
        <translation>&amp;Insert Token</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <extracomment>What a screen reader calls the button that opens a menu with the tokens, and its tool tip.</extracomment>
        <translation>Insert a token</translation>
    </message>
    <message>
        <source>No Tokens</source>
        <extracomment>Stands in that menu in place of tokens.</extracomment>
        <translation>No Tokens</translation>
    </message>
</context>
</TS>
