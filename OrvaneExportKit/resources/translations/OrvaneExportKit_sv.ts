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
        <source>Items that exist already: %1 of %2</source>
        <extracomment>Numbers of files and folders.</extracomment>
        <translation>Objekt som redan finns: %1 av %2</translation>
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
    <name>KZFontNameTextField</name>
    <message>
        <source>Double-click or press Space to choose a font</source>
        <extracomment>Tool tip of a field that shows a font.</extracomment>
        <translation>Dubbelklicka eller tryck på blanksteg för att välja ett teckensnitt</translation>
    </message>
    <message>
        <source>Choose a font</source>
        <extracomment>What a screen reader calls a button, and its tool tip.</extracomment>
        <translation>Välj ett typsnitt</translation>
    </message>
    <message>
        <source>not installed</source>
        <extracomment>Stands in a field, behind the name of a font.</extracomment>
        <translation>inte installerat</translation>
    </message>
    <message>
        <source>This font is not installed.</source>
        <extracomment>In a tool tip.</extracomment>
        <translation>Det här typsnittet är inte installerat.</translation>
    </message>
</context>
<context>
    <name>KZPageView</name>
    <message>
        <source>Page preview</source>
        <extracomment>What a screen reader calls the picture of a page.</extracomment>
        <translation>Förhandsvisning av sidan</translation>
    </message>
    <message>
        <source>Page %1; margins: top %2, left %3, right %4, bottom %5</source>
        <extracomment>Read out by a screen reader. %1 is the size of the paper as in &quot;21.00 cm x 29.70 cm&quot;, the others are lengths as in &quot;2.54 cm&quot;.</extracomment>
        <translation>Sida %1; marginaler: överkant %2, vänster %3, höger %4, nederkant %5</translation>
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
<context>
    <name>windowing::DictionaryTable</name>
    <message>
        <source>&amp;Add</source>
        <extracomment>A button below a table: adds a row.</extracomment>
        <translation>&amp;Lägg till</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Flytta &amp;upp</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Flytta &amp;ned</translation>
    </message>
</context>
<context>
    <name>windowing::FontPanel</name>
    <message>
        <source>Fonts</source>
        <extracomment>Title of the panel in which the user chooses a font.</extracomment>
        <translation>Teckensnitt</translation>
    </message>
    <message>
        <source>Sample</source>
        <extracomment>What a screen reader calls the sample of the chosen font.</extracomment>
        <translation>Exempel</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Familj:</translation>
    </message>
    <message>
        <source>&amp;Style:</source>
        <extracomment>Of a font, such as bold.</extracomment>
        <translation>&amp;Stil:</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <extracomment>Of a font.</extracomment>
        <translation>S&amp;torlek:</translation>
    </message>
    <message>
        <source> pt</source>
        <extracomment>Points, after the size of a font.</extracomment>
        <translation> pt</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Understruken</translation>
    </message>
    <message>
        <source>Stri&amp;kethrough</source>
        <translation>&amp;Genomstruken</translation>
    </message>
    <message>
        <source>&amp;Text color:</source>
        <extracomment>Label of a check box; the color is beside it.</extracomment>
        <translation>Text&amp;färg:</translation>
    </message>
    <message>
        <source>Choose the text color</source>
        <extracomment>What a screen reader calls a button, and title of what it opens.</extracomment>
        <translation>Välj textfärg</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <extracomment>Label of a check box; the background color is beside it.</extracomment>
        <translation>&amp;Bakgrund:</translation>
    </message>
    <message>
        <source>Choose the background color</source>
        <extracomment>What a screen reader calls a button, and title of what it opens.</extracomment>
        <translation>Välj bakgrundsfärg</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <extracomment>A button: takes back the last change.</extracomment>
        <translation>Å&amp;ngra</translation>
    </message>
    <message>
        <source>Takes back the last change</source>
        <extracomment>Tool tip of a button.</extracomment>
        <translation>Ångrar den senaste ändringen</translation>
    </message>
    <message>
        <source>The font “%1” is not installed. Another one stands in for it here.</source>
        <extracomment>%1 is the name of a family of fonts.</extracomment>
        <translation>Typsnittet ”%1” är inte installerat. Ett annat ersätter det här.</translation>
    </message>
</context>
<context>
    <name>windowing::TokenEditor</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ångra</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Gör om</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Klipp &amp;ut</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiera</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>K&amp;listra in</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Markera allt</translation>
    </message>
    <message>
        <source>&amp;Insert Token</source>
        <extracomment>An entry of a menu, with a menu of its own that lists the tokens. A token stands for something that is put in later, such as the name of a document.</extracomment>
        <translation>&amp;Infoga platshållare</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <extracomment>What a screen reader calls the button that opens a menu with the tokens, and its tool tip.</extracomment>
        <translation>Infoga en platshållare</translation>
    </message>
    <message>
        <source>No Tokens</source>
        <extracomment>Stands in that menu in place of tokens.</extracomment>
        <translation>Inga platshållare</translation>
    </message>
</context>
</TS>
