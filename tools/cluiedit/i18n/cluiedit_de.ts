<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>BdfReader</name>
    <message>
        <source>%1 does not fit into the memory.</source>
        <translation>%1 passt nicht in den Arbeitsspeicher.</translation>
    </message>
    <message>
        <source>%1 is a directory, not a file.</source>
        <translation>%1 ist ein Verzeichnis, keine Datei.</translation>
    </message>
    <message>
        <source>%1 is not an ordinary file.</source>
        <translation>%1 ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>%1 is empty: it has no line of headers.</source>
        <translation>%1 ist leer: Die Kopfzeile fehlt.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>a quote is missing at the end of the cell.</source>
        <translation>am Ende der Zelle fehlt ein Anführungszeichen.</translation>
    </message>
    <message>
        <source>%1 is not a text in UTF-8.</source>
        <translation>%1 ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <source>there is a quote where none may be. A cell in quotes begins and ends with one, and quotes in it are written twice.</source>
        <translation>hier darf kein Anführungszeichen stehen. Eine Zelle in Anführungszeichen beginnt und endet mit einem, und solche im Text werden doppelt geschrieben.</translation>
    </message>
    <message>
        <source>the cell is longer than %1 bytes.</source>
        <translation>die Zelle ist länger als %1 Bytes.</translation>
    </message>
    <message>
        <source>the row has more cells than the header, which has %1.</source>
        <translation>die Zeile hat mehr Zellen als die Kopfzeile, die %1 hat.</translation>
    </message>
    <message>
        <source>the header has more than %1 columns.</source>
        <translation>die Kopfzeile hat mehr als %1 Spalten.</translation>
    </message>
    <message>
        <source>the header of the column is longer than %1 bytes.</source>
        <translation>der Spaltenkopf ist länger als %1 Bytes.</translation>
    </message>
    <message>
        <source>%1 is beyond the numbers that can be computed with.</source>
        <translation>%1 liegt außerhalb der Zahlen, mit denen sich rechnen lässt.</translation>
    </message>
    <message>
        <source>%1 has a decimal comma. Numbers have a decimal point.</source>
        <translation>%1 hat ein Dezimalkomma. Zahlen brauchen einen Dezimalpunkt.</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 ist keine Zahl.</translation>
    </message>
    <message>
        <source>the row has %1 cells, and the header has %2.</source>
        <translation>die Zeile hat %1 Zellen, die Kopfzeile %2.</translation>
    </message>
    <message>
        <source>column %1, without a name</source>
        <translation>Spalte %1, ohne Namen</translation>
    </message>
    <message>
        <source>this is another column of %1.</source>
        <translation>dies ist eine weitere Spalte für %1.</translation>
    </message>
    <message>
        <source>%1, line %2: the header names no column of numbers that is known, such as &quot;voltage_volt&quot;.</source>
        <translation>%1, Zeile %2: Die Kopfzeile nennt keine bekannte Zahlenspalte, wie etwa „voltage_volt“.</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, Zeile %2, Spalte %3: %4</translation>
    </message>
    <message>
        <source>%1, line %2, column %3 (%4): %5</source>
        <translation>%1, Zeile %2, Spalte %3 (%4): %5</translation>
    </message>
</context>
<context>
    <name>DemonstrationCell</name>
    <message>
        <source>Demonstration cell</source>
        <translation>Demonstrationszelle</translation>
    </message>
</context>
<context>
    <name>cluiedit</name>
    <message>
        <source>Plot</source>
        <translation>Plot</translation>
    </message>
    <message>
        <source>%1: give the file the suffix .png, .svg or .pdf.</source>
        <translation>%1: Der Dateiname muss auf .png, .svg oder .pdf enden.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;SVG drawings (*.svg);;PDF documents (*.pdf)</source>
        <translation>PNG-Bilder (*.png);;SVG-Zeichnungen (*.svg);;PDF-Dokumente (*.pdf)</translation>
    </message>
</context>
<context>
    <name>cluiedit::AxesChooser</name>
    <message>
        <source>&amp;Representation:</source>
        <translation>Dar&amp;stellung:</translation>
    </message>
</context>
<context>
    <name>cluiedit::AxesMatrix</name>
    <message>
        <source>%1 × %2: not offered</source>
        <translation>%1 × %2: nicht angeboten</translation>
    </message>
    <message>
        <source>logarithmic</source>
        <translation>logarithmisch</translation>
    </message>
    <message>
        <source>linear</source>
        <translation>linear</translation>
    </message>
    <message>
        <source>%1 × %2: %3, %4, orthonormal</source>
        <translation>%1 × %2: %3, %4, orthonormal</translation>
    </message>
    <message>
        <source>%1 × %2: %3, %4</source>
        <translation>%1 × %2: %3, %4</translation>
    </message>
</context>
<context>
    <name>cluiedit::AxesTab</name>
    <message>
        <source>linear</source>
        <translation>linear</translation>
    </message>
    <message>
        <source>X logarithmic</source>
        <translation>X logarithmisch</translation>
    </message>
    <message>
        <source>Y logarithmic</source>
        <translation>Y logarithmisch</translation>
    </message>
    <message>
        <source>orthonormal</source>
        <translation>orthonormal</translation>
    </message>
    <message>
        <source>Hide axes without &amp;a pair</source>
        <translation>Achsen &amp;ohne Paar ausblenden</translation>
    </message>
    <message>
        <source>&amp;X axes:</source>
        <translation>&amp;X-Achsen:</translation>
    </message>
    <message>
        <source>Words that the name of an X axis must have</source>
        <translation>Wörter, die der Name einer X-Achse enthalten muss</translation>
    </message>
    <message>
        <source>&amp;Y axes:</source>
        <translation>&amp;Y-Achsen:</translation>
    </message>
    <message>
        <source>Words that the name of a Y axis must have</source>
        <translation>Wörter, die der Name einer Y-Achse enthalten muss</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Wie im Dokument</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Nach Namen</translation>
    </message>
    <message>
        <source>&amp;Order:</source>
        <translation>&amp;Reihenfolge:</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Pairs of axes, X in columns and Y in rows</source>
        <translation>Achsenpaare, X in Spalten und Y in Zeilen</translation>
    </message>
    <message>
        <source>Columns are X axes, rows are Y axes. Choose a mark to see its plot.</source>
        <translation>Spalten sind X-Achsen, Zeilen Y-Achsen. Eine Marke wählen, um ihren Plot zu sehen.</translation>
    </message>
    <message>
        <source>The document gives none.</source>
        <translation>Das Dokument enthält keine.</translation>
    </message>
    <message>
        <source>Pairs shown: %1 of %2. X axes: %3 of %4. Y axes: %5 of %6.</source>
        <translation>Gezeigte Paare: %1 von %2. X-Achsen: %3 von %4. Y-Achsen: %5 von %6.</translation>
    </message>
</context>
<context>
    <name>cluiedit::AxisChooser</name>
    <message>
        <source>Logarithmic</source>
        <translation>Logarithmisch</translation>
    </message>
    <message>
        <source>&amp;X:</source>
        <translation>&amp;X:</translation>
    </message>
    <message>
        <source>Y&amp;1:</source>
        <translation>Y&amp;1:</translation>
    </message>
    <message>
        <source>Y&amp;2:</source>
        <translation>Y&amp;2:</translation>
    </message>
    <message>
        <source>Unit of the X axis</source>
        <translation>Einheit der X-Achse</translation>
    </message>
    <message>
        <source>Unit of the Y1 axis</source>
        <translation>Einheit der Y1-Achse</translation>
    </message>
    <message>
        <source>Unit of the Y2 axis</source>
        <translation>Einheit der Y2-Achse</translation>
    </message>
    <message>
        <source>Logarithmic X axis</source>
        <translation>Logarithmische X-Achse</translation>
    </message>
    <message>
        <source>Logarithmic Y1 axis</source>
        <translation>Logarithmische Y1-Achse</translation>
    </message>
    <message>
        <source>Logarithmic Y2 axis</source>
        <translation>Logarithmische Y2-Achse</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>(no unit)</source>
        <translation>(ohne Einheit)</translation>
    </message>
</context>
<context>
    <name>cluiedit::ColorVision</name>
    <message>
        <source>Protanopia</source>
        <translation>Protanopie</translation>
    </message>
    <message>
        <source>Deuteranopia</source>
        <translation>Deuteranopie</translation>
    </message>
    <message>
        <source>Tritanopia</source>
        <translation>Tritanopie</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
</context>
<context>
    <name>cluiedit::ColorsTab</name>
    <message>
        <source>%1 and %2 look alike with protanopia (ΔE00 %3)</source>
        <translation>%1 und %2 sehen bei Protanopie ähnlich aus (ΔE00 %3)</translation>
    </message>
    <message>
        <source>%1 and %2 look alike with deuteranopia (ΔE00 %3)</source>
        <translation>%1 und %2 sehen bei Deuteranopie ähnlich aus (ΔE00 %3)</translation>
    </message>
    <message>
        <source>%1 and %2 look alike with tritanopia (ΔE00 %3)</source>
        <translation>%1 und %2 sehen bei Tritanopie ähnlich aus (ΔE00 %3)</translation>
    </message>
    <message>
        <source>%1 and %2 look alike (ΔE00 %3)</source>
        <translation>%1 und %2 sehen ähnlich aus (ΔE00 %3)</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>On white</source>
        <translation>Auf Weiß</translation>
    </message>
    <message>
        <source>On black</source>
        <translation>Auf Schwarz</translation>
    </message>
    <message>
        <source>Default of</source>
        <translation>Standard für</translation>
    </message>
    <message>
        <source>(invalid)</source>
        <translation>(ungültig)</translation>
    </message>
    <message>
        <source>The document gives none.</source>
        <translation>Das Dokument enthält keine.</translation>
    </message>
    <message>
        <source>Colours that look alike</source>
        <translation>Ähnlich aussehende Farben</translation>
    </message>
    <message>
        <source>No two colours look alike: all differ by ΔE00 %1 or more, also with colour blindness.</source>
        <translation>Alle Farben unterscheiden sich um mindestens ΔE00 %1, auch bei Farbenblindheit.</translation>
    </message>
    <message>
        <source>Pairs that look alike, closer than ΔE00 %1: %2, of which %3 are listed</source>
        <translation>Ähnliche Paare, näher als ΔE00 %1: %2, davon hier %3</translation>
    </message>
    <message>
        <source>Pairs that look alike, closer than ΔE00 %1: %2</source>
        <translation>Ähnliche Paare, näher als ΔE00 %1: %2</translation>
    </message>
</context>
<context>
    <name>cluiedit::CompareDialog</name>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>&amp;Here, not saved</source>
        <translation>&amp;Hier, nicht gespeichert</translation>
    </message>
    <message>
        <source>In the &amp;file</source>
        <translation>In der &amp;Datei</translation>
    </message>
    <message>
        <source>Both are the same.</source>
        <translation>Beide sind gleich.</translation>
    </message>
    <message>
        <source>What differs begins in line %1. Lines marked: %2 here, %3 in the file.</source>
        <translation>Die Unterschiede beginnen in Zeile %1. Markierte Zeilen: %2 hier, %3 in der Datei.</translation>
    </message>
</context>
<context>
    <name>cluiedit::CompletionPopup</name>
    <message>
        <source>What may stand here</source>
        <translation>Was hier stehen darf</translation>
    </message>
</context>
<context>
    <name>cluiedit::Curves</name>
    <message>
        <source>%1 has no %2 of the same category as %3</source>
        <translation>%1 enthält „%2“ nicht in derselben Kategorie wie „%3“</translation>
    </message>
    <message>
        <source>%1 has no %2</source>
        <translation>%1 enthält „%2“ nicht</translation>
    </message>
    <message>
        <source>%1 has no %2 and no %3</source>
        <translation>%1 enthält weder „%2“ noch „%3“</translation>
    </message>
    <message>
        <source>%1 has %2 in a unit that does not fit the axis</source>
        <translation>%1 enthält „%2“ in einer Einheit, die nicht zur Achse passt</translation>
    </message>
</context>
<context>
    <name>cluiedit::DocumentFile</name>
    <message>
        <source>“%1” is a directory. Choose a file in it.</source>
        <translation>„%1“ ist ein Verzeichnis. Wählen Sie eine Datei darin.</translation>
    </message>
    <message>
        <source>“%1” is no regular file.</source>
        <translation>„%1“ ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>„%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>“%1” is no text: it holds the byte 0.</source>
        <translation>„%1“ ist kein Text: Die Datei enthält das Byte 0.</translation>
    </message>
    <message>
        <source>“%1” is no text in UTF-8: look at line %2. Convert the file first.</source>
        <translation>„%1“ ist kein Text in UTF-8: siehe Zeile %2. Wandeln Sie die Datei zuerst um.</translation>
    </message>
    <message>
        <source>“%1” cannot be written and stays as it is: %2</source>
        <translation>„%1“ lässt sich nicht schreiben und bleibt, wie sie ist: %2</translation>
    </message>
</context>
<context>
    <name>cluiedit::DocumentPane</name>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen…</translation>
    </message>
    <message>
        <source>&amp;Replace…</source>
        <translation>&amp;Ersetzen…</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Nächster Treffer</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>&amp;Voriger Treffer</translation>
    </message>
</context>
<context>
    <name>cluiedit::Editor</name>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Of this very long line only the beginning is shown.</source>
        <translation>Von dieser sehr langen Zeile ist nur der Anfang zu sehen.</translation>
    </message>
</context>
<context>
    <name>cluiedit::FindAnything</name>
    <message>
        <source>Find anything</source>
        <translation>Alles durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Name of a data array, colour, graph, recipe entry or section:</source>
        <translation>&amp;Name von Datenreihe, Farbe, Diagramm, Rezepteintrag oder Abschnitt:</translation>
    </message>
    <message>
        <source>Some letters of it, in their order</source>
        <translation>Einige seiner Buchstaben, in ihrer Reihenfolge</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>Matches: %1 of %2</source>
        <translation>Treffer: %1 von %2</translation>
    </message>
    <message>
        <source>Data array</source>
        <translation>Datenreihe</translation>
    </message>
    <message>
        <source>Representation</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Recipe entry</source>
        <translation>Rezepteintrag</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
</context>
<context>
    <name>cluiedit::FindBar</name>
    <message>
        <source>Find:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>How often it was found</source>
        <translation>Anzahl der Treffer</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Shift+F3</source>
        <translation>Umschalt+F3</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>Suche schließen</translation>
    </message>
    <message>
        <source>In a regular expression, \1 stands for what its first group found.</source>
        <translation>Bei regulären Ausdrücken steht \1 für den Treffer der ersten Gruppe.</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Ersetzen durch:</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß/klein</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Ganze Wörter</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>not valid</source>
        <translation>ungültig</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>kein Treffer</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation>%1 ersetzt</translation>
    </message>
</context>
<context>
    <name>cluiedit::FindModel</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>cluiedit::FindingsModel</name>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
</context>
<context>
    <name>cluiedit::FindingsPanel</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Error&amp;s (%1)</source>
        <translation>&amp;Fehler (%1)</translation>
    </message>
    <message>
        <source>&amp;Warnings (%1)</source>
        <translation>&amp;Warnungen (%1)</translation>
    </message>
</context>
<context>
    <name>cluiedit::LoadingBar</name>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Stop loading measurements</source>
        <translation>Laden der Messdaten abbrechen</translation>
    </message>
    <message>
        <source>Cancel loading</source>
        <translation>Laden abbrechen</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>%1 wird geladen</translation>
    </message>
    <message>
        <source>Loading %1 (%2 more to come)</source>
        <translation>%1 wird geladen (noch %2 danach)</translation>
    </message>
</context>
<context>
    <name>cluiedit::Notices</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Meldung schließen</translation>
    </message>
</context>
<context>
    <name>cluiedit::PlotNotices</name>
    <message>
        <source>The catalogue has no data array “%1”.</source>
        <translation>Der Katalog hat keine Datenreihe „%1“.</translation>
    </message>
    <message>
        <source>No axes combination of the document has “%1” as X.</source>
        <translation>Keine Achsenkombination des Dokuments hat „%1“ als X.</translation>
    </message>
    <message>
        <source>No axes combination of the document pairs “%1” with “%2”.</source>
        <translation>Keine Achsenkombination des Dokuments verbindet „%1“ mit „%2“.</translation>
    </message>
    <message>
        <source>There are no measurements to plot.</source>
        <translation>Es gibt keine Messdaten zu zeichnen.</translation>
    </message>
    <message>
        <source>Choose an array for Y1 or Y2.</source>
        <translation>Wählen Sie eine Datenreihe für Y1 oder Y2.</translation>
    </message>
    <message>
        <source>%1 has no values of %2 over %3</source>
        <translation>%1 enthält keine Werte von „%2“ über „%3“</translation>
    </message>
    <message>
        <source>%1: none of the %2 points of %3 can be drawn on logarithmic axes, which show numbers above 0</source>
        <translation>%1: Keiner der %2 Punkte von „%3“ ist auf logarithmischen Achsen darstellbar, die nur Zahlen über 0 zeigen</translation>
    </message>
    <message>
        <source>%1: %2 points of %3 are left out, as logarithmic axes show numbers above 0</source>
        <translation>%1: %2 Punkte von „%3“ fehlen, da logarithmische Achsen nur Zahlen über 0 zeigen</translation>
    </message>
    <message>
        <source>And %1 more of this kind.</source>
        <translation>Und %1 weitere dieser Art.</translation>
    </message>
</context>
<context>
    <name>cluiedit::PlotTab</name>
    <message>
        <source>Values of the nearest points</source>
        <translation>Werte der nächstgelegenen Punkte</translation>
    </message>
    <message>
        <source>Show &amp;all</source>
        <translation>A&amp;lles zeigen</translation>
    </message>
    <message>
        <source>Show all points (Home, or double click)</source>
        <translation>Alle Punkte zeigen (Pos1 oder Doppelklick)</translation>
    </message>
    <message>
        <source>&amp;Zoom to rectangle</source>
        <translation>Rechteck &amp;zoomen</translation>
    </message>
    <message>
        <source>Drag to zoom to a rectangle; otherwise drag with Shift</source>
        <translation>Durch Ziehen ein Rechteck vergrößern; sonst beim Ziehen Umschalt drücken</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>Bild &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy the plot as a picture</source>
        <translation>Plot als Bild kopieren</translation>
    </message>
    <message>
        <source>Ex&amp;port…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>Save the plot as PNG, SVG or PDF</source>
        <translation>Plot als PNG, SVG oder PDF speichern</translation>
    </message>
    <message>
        <source>Ren&amp;dering…</source>
        <translation>Zeich&amp;nen…</translation>
    </message>
    <message>
        <source>Choose how graphs are drawn</source>
        <translation>Wählen, wie Kurven gezeichnet werden</translation>
    </message>
    <message>
        <source>Export the plot</source>
        <translation>Plot exportieren</translation>
    </message>
</context>
<context>
    <name>cluiedit::PlotView</name>
    <message>
        <source>Plot</source>
        <translation>Plot</translation>
    </message>
</context>
<context>
    <name>cluiedit::PlottedCurves</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 %3 at %4</source>
        <translation>%1: %2 %3 bei %4</translation>
    </message>
    <message>
        <source>%1 %2 at %3</source>
        <translation>%1 %2 bei %3</translation>
    </message>
    <message>
        <source>Too many points: only parts and the extremes are drawn of %1.</source>
        <translation>Zu viele Punkte: Nur Teile und die Extremwerte sind gezeichnet von %1.</translation>
    </message>
</context>
<context>
    <name>cluiedit::RenderingDialog</name>
    <message>
        <source>&amp;Hide markers of curves with many points in view</source>
        <translation>&amp;Marken ausblenden, wenn viele Punkte einer Kurve sichtbar sind</translation>
    </message>
    <message>
        <source>Rendering of graphs</source>
        <translation>Zeichnen der Kurven</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Up to so many points in view, each one is drawn.</source>
        <translation>Bis zu so vielen sichtbaren Punkten wird jeder gezeichnet.</translation>
    </message>
    <message>
        <source>A curve in an exported drawing, which may be enlarged, aims at so many points.</source>
        <translation>Eine Kurve in einer exportierten Zeichnung, die vergrößert werden kann, erhält etwa so viele Punkte.</translation>
    </message>
    <message>
        <source>No curve is drawn with more points. The lowest and highest ones always stay.</source>
        <translation>Keine Kurve wird mit mehr Punkten gezeichnet. Die tiefsten und höchsten bleiben immer erhalten.</translation>
    </message>
    <message>
        <source>Draw &amp;all points up to:</source>
        <translation>Alle &amp;Punkte zeichnen bis:</translation>
    </message>
    <message>
        <source>&amp;Points to aim at:</source>
        <translation>An&amp;gestrebte Punkte:</translation>
    </message>
    <message>
        <source>&amp;Most points of a curve:</source>
        <translation>&amp;Höchstzahl der Punkte einer Kurve:</translation>
    </message>
    <message>
        <source>Most points with mar&amp;kers:</source>
        <translation>Höchstzahl der Punkte mit Mar&amp;ken:</translation>
    </message>
    <message>
        <source>Line &amp;width:</source>
        <translation>&amp;Linienbreite:</translation>
    </message>
</context>
<context>
    <name>cluiedit::RepresentationChooser</name>
    <message>
        <source>No axes combination pairs “%1” with “%2”.</source>
        <translation>Keine Achsenkombination verbindet „%1“ mit „%2“.</translation>
    </message>
    <message>
        <source>No axes combination pairs “%1” with “%2” or “%3”.</source>
        <translation>Keine Achsenkombination verbindet „%1“ mit „%2“ oder „%3“.</translation>
    </message>
    <message>
        <source>(own choice)</source>
        <translation>(eigene Wahl)</translation>
    </message>
</context>
<context>
    <name>cluiedit::TablePanel</name>
    <message>
        <source>Words that a row must have</source>
        <translation>Wörter, die eine Zeile enthalten muss</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>Fi&amp;lter:</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy with &amp;headings</source>
        <translation>Mit Ü&amp;berschriften kopieren</translation>
    </message>
    <message>
        <source>Copy as CS&amp;V with headings</source>
        <translation>Als CS&amp;V mit Überschriften kopieren</translation>
    </message>
    <message>
        <source>Copy c&amp;ell</source>
        <translation>&amp;Zelle kopieren</translation>
    </message>
    <message>
        <source>&amp;Show in the document</source>
        <translation>Im &amp;Dokument zeigen</translation>
    </message>
    <message>
        <source>Rows shown: %1 of %2</source>
        <translation>Gezeigte Zeilen: %1 von %2</translation>
    </message>
</context>
<context>
    <name>cluiedit::Tables</name>
    <message>
        <source>Representations</source>
        <translation>Darstellungen</translation>
    </message>
    <message>
        <source>Compound units</source>
        <translation>Zusammengesetzte Einheiten</translation>
    </message>
    <message>
        <source>Skipped tasks</source>
        <translation>Übersprungene Aufgaben</translation>
    </message>
    <message>
        <source>Summary table columns</source>
        <translation>Spalten der Übersichtstabellen</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Default colours</source>
        <translation>Standardfarben</translation>
    </message>
    <message>
        <source>Statistics graphs</source>
        <translation>Statistikdiagramme</translation>
    </message>
    <message>
        <source>Ragone plots</source>
        <translation>Ragone-Diagramme</translation>
    </message>
    <message>
        <source>Processed-data graphs</source>
        <translation>Diagramme verarbeiteter Daten</translation>
    </message>
    <message>
        <source>Recipe entries</source>
        <translation>Rezepteinträge</translation>
    </message>
    <message>
        <source>Process formulas</source>
        <translation>Verarbeitungsformeln</translation>
    </message>
    <message>
        <source>dQ/dU columns</source>
        <translation>dQ/dU-Spalten</translation>
    </message>
    <message>
        <source>dQ/dU graph</source>
        <translation>dQ/dU-Diagramm</translation>
    </message>
    <message>
        <source>Debug switches</source>
        <translation>Debug-Schalter</translation>
    </message>
    <message>
        <source>Physical parameters</source>
        <translation>Physikalische Größen</translation>
    </message>
    <message>
        <source>Units of %1</source>
        <translation>Einheiten von %1</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Y1</source>
        <translation>Y1</translation>
    </message>
    <message>
        <source>Y2</source>
        <translation>Y2</translation>
    </message>
    <message>
        <source>X scale</source>
        <translation>X-Skala</translation>
    </message>
    <message>
        <source>Y scale</source>
        <translation>Y-Skala</translation>
    </message>
    <message>
        <source>Orthonormal</source>
        <translation>Orthonormal</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Drawn</source>
        <translation>Gezeichnet</translation>
    </message>
    <message>
        <source>Physical parameter</source>
        <translation>Physikalische Größe</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Mit</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Aufgabe</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Processed Y</source>
        <translation>Verarbeitetes Y</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>Displayed</source>
        <translation>Angezeigt</translation>
    </message>
    <message>
        <source>Compiled</source>
        <translation>Übersetzt</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Gezeigt</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Warum nicht</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>(unbekannt)</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>Y1 and Y2</source>
        <translation>Y1 und Y2</translation>
    </message>
    <message>
        <source>Identifiers in the import dialog</source>
        <translation>Bezeichner im Importdialog</translation>
    </message>
    <message>
        <source>Keep imported Parquet files</source>
        <translation>Importierte Parquet-Dateien behalten</translation>
    </message>
    <message>
        <source>Keep input data of impedance fits</source>
        <translation>Eingangsdaten der Impedanz-Fits behalten</translation>
    </message>
    <message>
        <source>%1 stands behind an operator: of the times only s and h may</source>
        <translation>%1 steht hinter einem Operator: Von den Zeiten dürfen das nur s und h</translation>
    </message>
    <message>
        <source>%1 is not among the units that may be shown</source>
        <translation>%1 gehört nicht zu den Einheiten, die gezeigt werden dürfen</translation>
    </message>
    <message>
        <source>%1 is a time at the fourth place</source>
        <translation>%1 ist eine Zeit an vierter Stelle</translation>
    </message>
    <message>
        <source>Axes combinations</source>
        <translation>Achsenkombinationen</translation>
    </message>
</context>
<context>
    <name>cluiedit::TablesTab</name>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>&amp;Tabelle:</translation>
    </message>
    <message>
        <source>The document gives none.</source>
        <translation>Das Dokument enthält keine.</translation>
    </message>
</context>
<context>
    <name>cluiedit::UnitsTab</name>
    <message>
        <source>The parameter has no units.</source>
        <translation>Die Größe hat keine Einheiten.</translation>
    </message>
</context>
<context>
    <name>cluiedit::Window</name>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Plot</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Graphs</source>
        <translation>Diagramme</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>Rezepte</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>The application refuses this document: %1</source>
        <translation>Die Anwendung lehnt dieses Dokument ab: %1</translation>
    </message>
    <message>
        <source>Go to line %1</source>
        <translation>Zu Zeile %1</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>%1[*] – %2, %3 – cluiedit</source>
        <translation>%1[*] – %2, %3 – cluiedit</translation>
    </message>
    <message>
        <source>“%1”: left out are columns that the catalogue does not know: %2</source>
        <translation>„%1“: Weggelassen sind Spalten, die der Katalog nicht kennt: %2</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New from the shipped document</source>
        <translation>&amp;Neu aus dem mitgelieferten Dokument</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Open &amp;measurements…</source>
        <translation>&amp;Messdaten öffnen…</translation>
    </message>
    <message>
        <source>&amp;Close measurements</source>
        <translation>Messdaten s&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Export the plot…</source>
        <translation>Plot &amp;exportieren…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Find &amp;anything…</source>
        <translation>&amp;Alles durchsuchen…</translation>
    </message>
    <message>
        <source>Co&amp;mplete</source>
        <translation>Vervo&amp;llständigen</translation>
    </message>
    <message>
        <source>M&amp;end what was found here</source>
        <translation>Be&amp;fund hier beheben</translation>
    </message>
    <message>
        <source>&amp;Lay out</source>
        <translation>Forma&amp;tieren</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>To the &amp;definition</source>
        <translation>Zur &amp;Definition</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>To the &amp;next finding</source>
        <translation>Zum &amp;nächsten Befund</translation>
    </message>
    <message>
        <source>To the &amp;previous finding</source>
        <translation>Zum &amp;vorigen Befund</translation>
    </message>
    <message>
        <source>To the d&amp;ocument</source>
        <translation>Zum Do&amp;kument</translation>
    </message>
    <message>
        <source>To the tab %1</source>
        <translation>Zum Reiter %1</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Drawing of graphs…</source>
        <translation>&amp;Zeichnen der Kurven…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About cluiedit</source>
        <translation>Ü&amp;ber cluiedit</translation>
    </message>
    <message>
        <source>About cluiedit</source>
        <translation>Über cluiedit</translation>
    </message>
    <message>
        <source>cluiedit %1

Shows what a configuration document gives the application while it is being written, and what is wrong with it.</source>
        <translation>cluiedit %1

Zeigt schon beim Schreiben, was ein Konfigurationsdokument der Anwendung gibt und was daran falsch ist.</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>Configuration documents (*.json);;All files (*)</source>
        <translation>Konfigurationsdokumente (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Unsaved text</source>
        <translation>Nicht gespeicherter Text</translation>
    </message>
    <message>
        <source>The changes to “%1” are not saved.</source>
        <translation>Die Änderungen an „%1“ sind nicht gespeichert.</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation>Dokument öffnen</translation>
    </message>
    <message>
        <source>Save the document as</source>
        <translation>Dokument speichern unter</translation>
    </message>
    <message>
        <source>Open measurements</source>
        <translation>Messdaten öffnen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Only valid JSON can be laid out: %1</source>
        <translation>Nur gültiges JSON lässt sich formatieren: %1</translation>
    </message>
    <message>
        <source>&amp;Keep mine and save</source>
        <translation>&amp;Meinen behalten und speichern</translation>
    </message>
    <message>
        <source>&amp;Keep this text</source>
        <translation>&amp;Meinen Text behalten</translation>
    </message>
    <message>
        <source>Another program has changed “%1”.</source>
        <translation>Ein anderes Programm hat „%1“ geändert.</translation>
    </message>
    <message>
        <source>Co&amp;mpare…</source>
        <translation>Vergle&amp;ichen…</translation>
    </message>
    <message>
        <source>&amp;Take the file</source>
        <translation>Von &amp;Platte laden</translation>
    </message>
    <message>
        <source>The unsaved text cannot be kept on the disk: save it soon.</source>
        <translation>Der ungespeicherte Text lässt sich nicht auf der Platte sichern: Speichern Sie ihn bald.</translation>
    </message>
    <message>
        <source>a document without a file</source>
        <translation>einem Dokument ohne Datei</translation>
    </message>
    <message>
        <source>Unsaved text of %1 was found, from %2.</source>
        <translation>Ungespeicherter Text von %1 wurde gefunden, vom %2.</translation>
    </message>
    <message>
        <source>Recover &amp;it</source>
        <translation>Z&amp;urückholen</translation>
    </message>
    <message>
        <source>Discard i&amp;t</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
</context>
<context>
    <name>ui_config</name>
    <message>
        <source>CL-Test CSV Files (*.csv)</source>
        <translation>CL-Test-CSV-Dateien (*.csv)</translation>
    </message>
</context>
</TS>
