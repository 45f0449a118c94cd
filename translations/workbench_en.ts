<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>FormulaTexts</name>
    <message>
        <source>Unbekannter Name &quot;%1&quot; an Stelle %2.</source>
        <translation>Unknown name &quot;%1&quot; at position %2.</translation>
    </message>
    <message>
        <source>Die Formel ist nicht zu Ende geschrieben.</source>
        <translation>The formula is incomplete.</translation>
    </message>
    <message>
        <source>Es fehlt eine schliessende Klammer.</source>
        <translation>A closing bracket is missing.</translation>
    </message>
    <message>
        <source>Unerwartete Klammer an Stelle %1.</source>
        <translation>Unexpected bracket at position %1.</translation>
    </message>
    <message>
        <source>Zu viele Argumente für &quot;%1&quot;.</source>
        <translation>Too many arguments for &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Zu wenige Argumente für &quot;%1&quot;.</source>
        <translation>Too few arguments for &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Die Formel ist an Stelle %1 nicht lesbar.</source>
        <translation>The formula cannot be read at position %1.</translation>
    </message>
    <message>
        <source>Die Formel ist leer.</source>
        <translation>The formula is empty.</translation>
    </message>
    <message>
        <source>Die Formel ist zu lang.</source>
        <translation>The formula is too long.</translation>
    </message>
    <message>
        <source>Die Formel hat mehrere Werte.</source>
        <translation>The formula has several values.</translation>
    </message>
    <message>
        <source>&quot;log&quot; ist nicht eindeutig: ln ist der natürliche, lg der Zehnerlogarithmus.</source>
        <translation>&quot;log&quot; is ambiguous: ln is the natural logarithm, lg the one to base 10.</translation>
    </message>
    <message>
        <source>Die Formel ergibt keine endliche Zahl.</source>
        <translation>The formula does not yield a finite number.</translation>
    </message>
</context>
<context>
    <name>InstallationForm</name>
    <message>
        <source>Hülsendurchmesser</source>
        <translation>Sleeve diameter</translation>
    </message>
    <message>
        <source>Spiel zur Hülse bei Blocklänge</source>
        <translation>Clearance to the sleeve at solid length</translation>
    </message>
    <message>
        <source>Neigung der Federachse zur Senkrechten</source>
        <translation>Inclination of the spring axis to the vertical</translation>
    </message>
    <message>
        <source>Gewichtskraft längs der Federachse</source>
        <translation>Weight along the spring axis</translation>
    </message>
    <message>
        <source>Einbaulängen</source>
        <translation>Installed lengths</translation>
    </message>
    <message>
        <source>Bauraum (Länge, Breite, Höhe)</source>
        <translation>Installation space (length, width, height)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tarvex Workbench</source>
        <translation>Tarvex Workbench</translation>
    </message>
    <message>
        <source>Berechnungen</source>
        <translation>Calculations</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>Berechnung &amp;öffnen</source>
        <translation>&amp;Open calculation</translation>
    </message>
    <message>
        <source>Öffnet die ausgewählte Berechnung</source>
        <translation>Opens the selected calculation</translation>
    </message>
    <message>
        <source>&amp;Beispiel laden</source>
        <translation>Load &amp;example</translation>
    </message>
    <message>
        <source>&amp;Werte laden...</source>
        <translation>&amp;Load values...</translation>
    </message>
    <message>
        <source>Liest Eingabewerte aus einer Datei</source>
        <translation>Reads input values from a file</translation>
    </message>
    <message>
        <source>Werte &amp;speichern...</source>
        <translation>&amp;Save values...</translation>
    </message>
    <message>
        <source>Schreibt die Eingabewerte in eine Datei</source>
        <translation>Writes the input values to a file</translation>
    </message>
    <message>
        <source>S&amp;chliessen</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Schliesst die Berechnung</source>
        <translation>Closes the calculation</translation>
    </message>
    <message>
        <source>Be&amp;enden</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Quits the program</translation>
    </message>
    <message>
        <source>&amp;Berechnung</source>
        <translation>&amp;Calculation</translation>
    </message>
    <message>
        <source>Be&amp;rechnen</source>
        <translation>&amp;Calculate</translation>
    </message>
    <message>
        <source>Berechnet mit den Werten der Maske</source>
        <translation>Calculates with the values of the mask</translation>
    </message>
    <message>
        <source>Im &amp;Dialog berechnen...</source>
        <translation>Calculate in a &amp;dialog...</translation>
    </message>
    <message>
        <source>Probiert Werte in einem Dialog aus und übernimmt sie, wenn sie berechnet sind</source>
        <translation>Tries values out in a dialog and takes them over once they are calculated</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Einheitensystem</source>
        <translation>&amp;Unit system</translation>
    </message>
    <message>
        <source>&amp;Metrisch</source>
        <translation>&amp;Metric</translation>
    </message>
    <message>
        <source>Zeigt alle Werte in metrischen Einheiten</source>
        <translation>Shows all values in metric units</translation>
    </message>
    <message>
        <source>&amp;US Customary Units</source>
        <translation>&amp;US customary units</translation>
    </message>
    <message>
        <source>Zeigt alle Werte in amerikanischen Einheiten</source>
        <translation>Shows all values in US customary units</translation>
    </message>
    <message>
        <source>&amp;Sprache</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Ü&amp;ber...</source>
        <translation>&amp;About...</translation>
    </message>
    <message>
        <source>Zeigt Angaben zum Programm</source>
        <translation>Shows information about the program</translation>
    </message>
    <message>
        <source>Öffnet die Berechnung &quot;%1&quot;</source>
        <translation>Opens the calculation &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Resultate konsistent</source>
        <translation>Results consistent</translation>
    </message>
    <message>
        <source>Resultate nicht konsistent</source>
        <translation>Results not consistent</translation>
    </message>
    <message>
        <source>Werte laden</source>
        <translation>Load values</translation>
    </message>
    <message>
        <source>Werte (*.values)</source>
        <translation>Values (*.values)</translation>
    </message>
    <message>
        <source>Werte speichern</source>
        <translation>Save values</translation>
    </message>
    <message>
        <source>Tarvex Workbench %1</source>
        <translation>Tarvex Workbench %1</translation>
    </message>
    <message>
        <source>Berechnungen von Maschinenelementen mit Einheiten.</source>
        <translation>Calculations of machine elements with units.</translation>
    </message>
    <message>
        <source>Zu dieser Stelle gibt es kein Hilfethema.</source>
        <translation>There is no help topic for this place.</translation>
    </message>
    <message>
        <source>Hilfethema %1</source>
        <translation>Help topic %1</translation>
    </message>
    <message>
        <source>Infothema %1</source>
        <translation>Info topic %1</translation>
    </message>
</context>
<context>
    <name>ModulePage</name>
    <message>
        <source>Werte (*.values)</source>
        <translation>Values (*.values)</translation>
    </message>
</context>
</TS>
