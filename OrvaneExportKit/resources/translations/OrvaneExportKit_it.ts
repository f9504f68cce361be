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
        <source>Items that exist already: %1 of %2</source>
        <extracomment>Numbers of files and folders.</extracomment>
        <translation>Elementi già presenti: %1 di %2</translation>
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
    <name>KZFontNameTextField</name>
    <message>
        <source>Double-click or press Space to choose a font</source>
        <extracomment>Tool tip of a field that shows a font.</extracomment>
        <translation>Fai doppio clic o premi la barra spaziatrice per scegliere un font</translation>
    </message>
    <message>
        <source>Choose a font</source>
        <extracomment>What a screen reader calls a button, and its tool tip.</extracomment>
        <translation>Scegli un font</translation>
    </message>
    <message>
        <source>not installed</source>
        <extracomment>Stands in a field, behind the name of a font.</extracomment>
        <translation>non installato</translation>
    </message>
    <message>
        <source>This font is not installed.</source>
        <extracomment>In a tool tip.</extracomment>
        <translation>Questo font non è installato.</translation>
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
<context>
    <name>windowing::DictionaryTable</name>
    <message>
        <source>&amp;Add</source>
        <extracomment>A button below a table: adds a row.</extracomment>
        <translation>&amp;Aggiungi</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Sposta &amp;su</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Sposta &amp;giù</translation>
    </message>
</context>
<context>
    <name>windowing::FontPanel</name>
    <message>
        <source>Fonts</source>
        <extracomment>Title of the panel in which the user chooses a font.</extracomment>
        <translation>Font</translation>
    </message>
    <message>
        <source>Sample</source>
        <extracomment>What a screen reader calls the sample of the chosen font.</extracomment>
        <translation>Esempio</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Famiglia:</translation>
    </message>
    <message>
        <source>&amp;Style:</source>
        <extracomment>Of a font, such as bold.</extracomment>
        <translation>&amp;Stile:</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <extracomment>Of a font.</extracomment>
        <translation>&amp;Dimensione:</translation>
    </message>
    <message>
        <source> pt</source>
        <extracomment>Points, after the size of a font.</extracomment>
        <translation> pt</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>So&amp;ttolineato</translation>
    </message>
    <message>
        <source>Stri&amp;kethrough</source>
        <translation>&amp;Barrato</translation>
    </message>
    <message>
        <source>&amp;Text color:</source>
        <extracomment>Label of a check box; the color is beside it.</extracomment>
        <translation>&amp;Colore del testo:</translation>
    </message>
    <message>
        <source>Choose the text color</source>
        <extracomment>What a screen reader calls a button, and title of what it opens.</extracomment>
        <translation>Scegli il colore del testo</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <extracomment>Label of a check box; the background color is beside it.</extracomment>
        <translation>S&amp;fondo:</translation>
    </message>
    <message>
        <source>Choose the background color</source>
        <extracomment>What a screen reader calls a button, and title of what it opens.</extracomment>
        <translation>Scegli il colore di sfondo</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <extracomment>A button: takes back the last change.</extracomment>
        <translation>Annu&amp;lla</translation>
    </message>
    <message>
        <source>Takes back the last change</source>
        <extracomment>Tool tip of a button.</extracomment>
        <translation>Annulla l’ultima modifica</translation>
    </message>
    <message>
        <source>The font “%1” is not installed. Another one stands in for it here.</source>
        <extracomment>%1 is the name of a family of fonts.</extracomment>
        <translation>Il font “%1” non è installato. Qui è sostituito da un altro.</translation>
    </message>
</context>
<context>
    <name>windowing::TokenEditor</name>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Insert Token</source>
        <extracomment>An entry of a menu, with a menu of its own that lists the tokens. A token stands for something that is put in later, such as the name of a document.</extracomment>
        <translation>Inserisci se&amp;gnaposto</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <extracomment>What a screen reader calls the button that opens a menu with the tokens, and its tool tip.</extracomment>
        <translation>Inserisci un segnaposto</translation>
    </message>
    <message>
        <source>No Tokens</source>
        <extracomment>Stands in that menu in place of tokens.</extracomment>
        <translation>Nessun segnaposto</translation>
    </message>
</context>
</TS>
