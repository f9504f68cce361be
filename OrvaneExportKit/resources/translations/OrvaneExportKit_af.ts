<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="af" sourcelanguage="en_US">
<context>
    <name>ExistingFiles</name>
    <message>
        <source>Replace Existing Files?</source>
        <translation>Bestaande lêers vervang?</translation>
    </message>
    <message>
        <source>Items that exist already: %1 of %2</source>
        <extracomment>Numbers of files and folders.</extracomment>
        <translation>Items wat reeds bestaan: %1 van %2</translation>
    </message>
    <message>
        <source>The folder “%@” already contains the items below. If you replace them, their current contents are lost.</source>
        <extracomment>%@ is the name of a folder.</extracomment>
        <translation>Die vouer “%@” bevat reeds die items hieronder. As jy hulle vervang, gaan hul huidige inhoud verlore.</translation>
    </message>
    <message>
        <source>Existing items</source>
        <translation>Bestaande items</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Kanselleer</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Vervang</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>K&amp;opieer</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Uitvoer</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Vordering van die uitvoer</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Staak</translation>
    </message>
</context>
<context>
    <name>FileNameChecks</name>
    <message>
        <source>The name is empty.</source>
        <translation>Die naam is leeg.</translation>
    </message>
    <message>
        <source>The name holds a control character.</source>
        <translation>Die naam bevat ’n beheerkarakter.</translation>
    </message>
    <message>
        <source>The name holds the character %1, which Windows reserves.</source>
        <extracomment>%1 is one character.</extracomment>
        <translation>Die naam bevat die karakter %1, wat deur Windows gereserveer word.</translation>
    </message>
    <message>
        <source>The name stands for a device on Windows.</source>
        <translation>Die naam verwys na ’n toestel in Windows.</translation>
    </message>
    <message>
        <source>The name ends with a dot or a blank.</source>
        <translation>Die naam eindig met ’n punt of ’n spasie.</translation>
    </message>
    <message>
        <source>The name is longer than 255 bytes.</source>
        <translation>Die naam is langer as 255 grepe.</translation>
    </message>
    <message>
        <source>%1 documents would get this name.</source>
        <extracomment>%1 is a number, 2 or more.</extracomment>
        <translation>%1 dokumente sou hierdie naam kry.</translation>
    </message>
    <message>
        <source>A folder with this name exists.</source>
        <translation>Daar is reeds ’n vouer met hierdie naam.</translation>
    </message>
    <message>
        <source>A file with this name exists.</source>
        <translation>Daar is reeds ’n lêer met hierdie naam.</translation>
    </message>
</context>
<context>
    <name>KZFontNameTextField</name>
    <message>
        <source>Double-click or press Space to choose a font</source>
        <extracomment>Tool tip of a field that shows a font.</extracomment>
        <translation>Dubbelklik of druk die spasiebalk om ’n font te kies</translation>
    </message>
    <message>
        <source>Choose a font</source>
        <extracomment>What a screen reader calls a button, and its tool tip.</extracomment>
        <translation>Kies ’n lettertipe</translation>
    </message>
    <message>
        <source>not installed</source>
        <extracomment>Stands in a field, behind the name of a font.</extracomment>
        <translation>nie geïnstalleer nie</translation>
    </message>
    <message>
        <source>This font is not installed.</source>
        <extracomment>In a tool tip.</extracomment>
        <translation>Hierdie lettertipe is nie geïnstalleer nie.</translation>
    </message>
</context>
<context>
    <name>KZPageView</name>
    <message>
        <source>Page preview</source>
        <extracomment>What a screen reader calls the picture of a page.</extracomment>
        <translation>Bladsyvoorskou</translation>
    </message>
    <message>
        <source>Page %1; margins: top %2, left %3, right %4, bottom %5</source>
        <extracomment>Read out by a screen reader. %1 is the size of the paper as in &quot;21.00 cm x 29.70 cm&quot;, the others are lengths as in &quot;2.54 cm&quot;.</extracomment>
        <translation>Bladsy %1; kantlyne: bo %2, links %3, regs %4, onder %5</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Level</source>
        <extracomment>Stands before the number of an outline level, as in &quot;Level 2 (##)&quot;.</extracomment>
        <translation>Vlak</translation>
    </message>
    <message>
        <source>ProcDoc</source>
        <extracomment>&quot;Processing document&quot;: stands in the progress sheet before a colon and the document&apos;s name.</extracomment>
        <translation>Verwerk tans dokument</translation>
    </message>
</context>
<context>
    <name>windowing::DictionaryTable</name>
    <message>
        <source>&amp;Add</source>
        <extracomment>A button below a table: adds a row.</extracomment>
        <translation>&amp;Voeg by</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>V&amp;erwyder</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Skuif &amp;op</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Skuif &amp;af</translation>
    </message>
</context>
<context>
    <name>windowing::FontPanel</name>
    <message>
        <source>Fonts</source>
        <extracomment>Title of the panel in which the user chooses a font.</extracomment>
        <translation>Fonte</translation>
    </message>
    <message>
        <source>Sample</source>
        <extracomment>What a screen reader calls the sample of the chosen font.</extracomment>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Familie:</translation>
    </message>
    <message>
        <source>&amp;Style:</source>
        <extracomment>Of a font, such as bold.</extracomment>
        <translation>&amp;Styl:</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <extracomment>Of a font.</extracomment>
        <translation>&amp;Grootte:</translation>
    </message>
    <message>
        <source> pt</source>
        <extracomment>Points, after the size of a font.</extracomment>
        <translation> pt</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Onderstreep</translation>
    </message>
    <message>
        <source>Stri&amp;kethrough</source>
        <translation>&amp;Deurgehaal</translation>
    </message>
    <message>
        <source>&amp;Text color:</source>
        <extracomment>Label of a check box; the color is beside it.</extracomment>
        <translation>&amp;Tekskleur:</translation>
    </message>
    <message>
        <source>Choose the text color</source>
        <extracomment>What a screen reader calls a button, and title of what it opens.</extracomment>
        <translation>Kies die tekskleur</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <extracomment>Label of a check box; the background color is beside it.</extracomment>
        <translation>&amp;Agtergrond:</translation>
    </message>
    <message>
        <source>Choose the background color</source>
        <extracomment>What a screen reader calls a button, and title of what it opens.</extracomment>
        <translation>Kies die agtergrondkleur</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <extracomment>A button: takes back the last change.</extracomment>
        <translation>O&amp;ntdoen</translation>
    </message>
    <message>
        <source>Takes back the last change</source>
        <extracomment>Tool tip of a button.</extracomment>
        <translation>Maak die laaste verandering ongedaan</translation>
    </message>
    <message>
        <source>The font “%1” is not installed. Another one stands in for it here.</source>
        <extracomment>%1 is the name of a family of fonts.</extracomment>
        <translation>Die lettertipe “%1” is nie geïnstalleer nie. ’n Ander een staan hier in die plek daarvan.</translation>
    </message>
</context>
<context>
    <name>windowing::TokenEditor</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ontdoen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Herdoen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Sny</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieer</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Plak</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Ve&amp;rwyder</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Kies &amp;alles</translation>
    </message>
    <message>
        <source>&amp;Insert Token</source>
        <extracomment>An entry of a menu, with a menu of its own that lists the tokens. A token stands for something that is put in later, such as the name of a document.</extracomment>
        <translation>Voeg plekhouer &amp;in</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <extracomment>What a screen reader calls the button that opens a menu with the tokens, and its tool tip.</extracomment>
        <translation>Voeg ’n plekhouer in</translation>
    </message>
    <message>
        <source>No Tokens</source>
        <extracomment>Stands in that menu in place of tokens.</extracomment>
        <translation>Geen plekhouers nie</translation>
    </message>
</context>
</TS>
