<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>ZelQtCalcVarInput</name>
    <message>
        <source>%1 auslegen</source>
        <translation>Size %1</translation>
    </message>
    <message>
        <source>%1 umrechnen</source>
        <translation>Convert %1</translation>
    </message>
    <message>
        <source>%1 definieren</source>
        <translation>Define %1</translation>
    </message>
</context>
<context>
    <name>ZelQtComboBox</name>
    <message>
        <source>nicht definiert</source>
        <translation>not defined</translation>
    </message>
</context>
<context>
    <name>ZelQtConvertButton</name>
    <message>
        <source>%1 umrechnen</source>
        <translation>Convert %1</translation>
    </message>
    <message>
        <source>Berechnet den Wert anhand von Umrechnungsformeln</source>
        <translation>Computes the value by conversion formulas</translation>
    </message>
</context>
<context>
    <name>ZelQtDatabaseButton</name>
    <message>
        <source>Datenbank bearbeiten</source>
        <translation>Edit database</translation>
    </message>
    <message>
        <source>Bearbeitet den Eintrag in der Datenbank</source>
        <translation>Edits the entry in the database</translation>
    </message>
</context>
<context>
    <name>ZelQtDialogButtonBox</name>
    <message>
        <source>Übernehmen</source>
        <translation>Accept</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Grafik</source>
        <translation>Graphics</translation>
    </message>
    <message>
        <source>Protokoll</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>Berechnen</source>
        <translation>Calculate</translation>
    </message>
    <message>
        <source>Bearbeiten</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Anzeigen</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Wiederherstellen</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Open</translation>
    </message>
</context>
<context>
    <name>ZelQtEditButton</name>
    <message>
        <source>eingeben/berechnen</source>
        <translation>enter/calculate</translation>
    </message>
    <message>
        <source>Legt fest ob dieser Wert eingegeben oder berechnet werden soll</source>
        <translation>Sets whether this value is entered or calculated</translation>
    </message>
    <message>
        <source>Legt fest welche Werte dieser Gruppe eingegeben und welche berechnet werden sollen</source>
        <translation>Sets which values of this group are entered and which are calculated</translation>
    </message>
</context>
<context>
    <name>ZelQtFormeleingabe</name>
    <message>
        <source>Formeleingabe:</source>
        <translation>Formula:</translation>
    </message>
</context>
<context>
    <name>ZelQtInfoButton</name>
    <message>
        <source>Zusatzinfo</source>
        <translation>Additional information</translation>
    </message>
    <message>
        <source>Zeigt zusätzliche Informationen im Infofenster an</source>
        <translation>Shows additional information in the info window</translation>
    </message>
</context>
<context>
    <name>ZelQtMessageBox</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Frage</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>Meldung</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Möchten Sie die Änderungen in &quot;%1&quot; speichern?</source>
        <translation>Do you want to save the changes in &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>Diese Aktion ist bei geöffnetem Berechnungsmodul nicht möglich!</source>
        <translation>This action is not possible while a calculation module is open!</translation>
    </message>
    <message>
        <source>Die Datenbanken (udb-Verzeichnis) werden bereits verwendet.&lt;br&gt;Vermutlich ist ein weiteres Tarvex oder Morlune aktiv.</source>
        <translation>The databases (udb directory) are already in use.&lt;br&gt;Another Tarvex or Morlune is probably running.</translation>
    </message>
    <message>
        <source>Die Resultate sind nicht konsistent!&lt;br&gt;Führen Sie zuerst die Berechnung aus.</source>
        <translation>The results are not consistent!&lt;br&gt;Run the calculation first.</translation>
    </message>
    <message>
        <source>Protokolle aus Spezialberechnungstabs stehen nur zur Verfügung wenn die Berechnung in diesen Spezialtabs durchgeführt wurde.</source>
        <translation>Reports of special calculation tabs are only available when the calculation was run in these tabs.</translation>
    </message>
    <message>
        <source>Die Resultate sind nicht konsistent!&lt;br&gt;Möchten Sie die Aktion dennoch durchführen?</source>
        <translation>The results are not consistent!&lt;br&gt;Do you want to continue anyway?</translation>
    </message>
    <message>
        <source>Die Resultate sind konsistent.&lt;br&gt;Möchten Sie wirklich neu rechnen?</source>
        <translation>The results are consistent.&lt;br&gt;Do you really want to recalculate?</translation>
    </message>
    <message>
        <source>Ein unbestimmter Fehler ist aufgetreten!&lt;br&gt;Die Berechnung wurde abgebrochen.</source>
        <translation>An unspecified error occurred!&lt;br&gt;The calculation was aborted.</translation>
    </message>
    <message>
        <source>Ein Fehler ist aufgetreten.&lt;br&gt;E-Mail kann nicht gesendet werden.</source>
        <translation>An error occurred.&lt;br&gt;The e-mail cannot be sent.</translation>
    </message>
    <message>
        <source>Sie haben keinen Eintrag markiert!&lt;br&gt;Bitte treffen Sie eine Auswahl.</source>
        <translation>No entry is selected!&lt;br&gt;Please make a selection.</translation>
    </message>
    <message>
        <source>Datei &quot;%1&quot; konnte nicht gefunden werden.</source>
        <translation>File &quot;%1&quot; could not be found.</translation>
    </message>
    <message>
        <source>Fehler beim Lesen der dynamischen Beschreibungsdatei &quot;%1&quot;.</source>
        <translation>Error while reading the dynamic description file &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Das Element &quot;%1&quot; ist im Metasystem nicht vorhanden.</source>
        <translation>The element &quot;%1&quot; does not exist in the meta system.</translation>
    </message>
    <message>
        <source>%1 konnte nicht gespeichert werden.</source>
        <translation>%1 could not be saved.</translation>
    </message>
    <message>
        <source>Benutzerdefinierte Protokollvorlage &quot;%1&quot; nicht gefunden.</source>
        <translation>User-defined report template &quot;%1&quot; not found.</translation>
    </message>
    <message>
        <source>Es wird die Tarvex-Protokollvorlage verwendet!</source>
        <translation>The Tarvex report template is used instead!</translation>
    </message>
    <message>
        <source>Tarvex-Protokollvorlage &quot;%1&quot; nicht gefunden.</source>
        <translation>Tarvex report template &quot;%1&quot; not found.</translation>
    </message>
    <message>
        <source>Das Protokoll konnte nicht erstellt werden!</source>
        <translation>The report could not be created!</translation>
    </message>
    <message>
        <source>Tarvex-Temporärdatei &quot;%1&quot; nicht gefunden.</source>
        <translation>Tarvex temporary file &quot;%1&quot; not found.</translation>
    </message>
    <message>
        <source>Bei der Erstellung des Protokolls ist ein Fehler aufgetreten.</source>
        <translation>An error occurred while the report was being created.</translation>
    </message>
    <message>
        <source>Bitte zuerst die Berechnung durchführen.</source>
        <translation>Please run the calculation first.</translation>
    </message>
</context>
<context>
    <name>ZelQtOfferButton</name>
    <message>
        <source>Angebot für ein Werkzeug anfragen</source>
        <translation>Request an offer for a tool</translation>
    </message>
    <message>
        <source>Fragt ein Angebot für ein Werkzeug an</source>
        <translation>Requests an offer for a tool</translation>
    </message>
</context>
<context>
    <name>ZelQtPlusButton</name>
    <message>
        <source>Zeigt zusätzliche Daten in einem Dialog an</source>
        <translation>Shows additional data in a dialog</translation>
    </message>
</context>
<context>
    <name>ZelQtSettingsButton</name>
    <message>
        <source>Spezifische Einstellungen</source>
        <translation>Specific settings</translation>
    </message>
    <message>
        <source>Spezifische Einstellungen für %1</source>
        <translation>Specific settings for %1</translation>
    </message>
    <message>
        <source>Zeigt spezifische Einstellungen für den Wert in einem Dialog an</source>
        <translation>Shows specific settings of the value in a dialog</translation>
    </message>
</context>
<context>
    <name>ZelQtSizeButton</name>
    <message>
        <source>%1 auslegen</source>
        <translation>Size %1</translation>
    </message>
    <message>
        <source>Berechnet den Wert anhand von Rechenmethoden</source>
        <translation>Computes the value by calculation methods</translation>
    </message>
</context>
<context>
    <name>ZelQtWinkeleingabe</name>
    <message>
        <source>Grad</source>
        <translation>Degrees</translation>
    </message>
    <message>
        <source>Minuten</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Sekunden</source>
        <translation>Seconds</translation>
    </message>
</context>
</TS>
