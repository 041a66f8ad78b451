<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CategoryBar</name>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Übergänge</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Split Screen</source>
        <translation>Splitscreen</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Stockmedien</translation>
    </message>
    <message>
        <source>Stock Provider</source>
        <translation>Stockanbieter</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>More categories</source>
        <translation>Weitere Kategorien</translation>
    </message>
</context>
<context>
    <name>CoverView</name>
    <message>
        <source>Picture of %1</source>
        <translation>Bild von %1</translation>
    </message>
</context>
<context>
    <name>FactSheet</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>%1 cannot be shown, because no file manager answered (%2) and its folder could not be opened.</source>
        <translation>%1 kann nicht gezeigt werden: Kein Dateimanager hat geantwortet (%2), und der Ordner ließ sich nicht öffnen.</translation>
    </message>
</context>
<context>
    <name>INxViewMoreSplitLinePainter</name>
    <message>
        <source>View More</source>
        <translation>Mehr anzeigen</translation>
    </message>
</context>
<context>
    <name>ImportDesk</name>
    <message>
        <source>There is no project to import into.</source>
        <translation>Es ist kein Projekt geöffnet, in das importiert werden könnte.</translation>
    </message>
    <message>
        <source>This project cannot be changed.</source>
        <translation>Dieses Projekt kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>Files cannot be imported into this folder.</source>
        <translation>In diesen Ordner können keine Dateien importiert werden.</translation>
    </message>
</context>
<context>
    <name>ImportReportModel</name>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
</context>
<context>
    <name>ImportReportView</name>
    <message>
        <source>Import Report</source>
        <translation>Importbericht</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Show the media, or the file on disk (Enter)</source>
        <translation>Das Medium oder die Datei auf dem Datenträger zeigen (Eingabetaste)</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Import or read the selected files once more (F5)</source>
        <translation>Die ausgewählten Dateien noch einmal importieren oder lesen (F5)</translation>
    </message>
    <message>
        <source>Copy Lines</source>
        <translation>Zeilen kopieren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the whole report as text</source>
        <translation>Den ganzen Bericht als Text kopieren</translation>
    </message>
    <message>
        <source>After an import you see here which files could not be added, and why.</source>
        <translation>Nach einem Import steht hier, welche Dateien nicht hinzugefügt werden konnten und warum.</translation>
    </message>
    <message>
        <source>All files were added.</source>
        <translation>Alle Dateien wurden hinzugefügt.</translation>
    </message>
</context>
<context>
    <name>ImportStatus</name>
    <message>
        <source>Import Progress</source>
        <translation>Importfortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop importing; what was added stays</source>
        <translation>Den Import anhalten; was hinzugefügt wurde, bleibt</translation>
    </message>
    <message>
        <source>Cancel Import</source>
        <translation>Import abbrechen</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>Importbericht</translation>
    </message>
    <message>
        <source>Importing: %1 found, %2 added, %3 read</source>
        <translation>Import: %1 gefunden, %2 hinzugefügt, %3 gelesen</translation>
    </message>
    <message>
        <source>Reading %1 of %2</source>
        <translation>%1 von %2 werden gelesen</translation>
    </message>
    <message>
        <source>Files cannot be read: %1</source>
        <translation>Dateien können nicht gelesen werden: %1</translation>
    </message>
</context>
<context>
    <name>ImportWords</name>
    <message numerus="yes">
        <source>%Ln already there</source>
        <translation>
            <numerusform>%Ln schon vorhanden</numerusform>
            <numerusform>%Ln schon vorhanden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln refused</source>
        <translation>
            <numerusform>%Ln abgelehnt</numerusform>
            <numerusform>%Ln abgelehnt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be read</source>
        <translation>
            <numerusform>%Ln nicht lesbar</numerusform>
            <numerusform>%Ln nicht lesbar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not reached</source>
        <translation>
            <numerusform>%Ln nicht erreicht</numerusform>
            <numerusform>%Ln nicht erreicht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden left out</source>
        <translation>
            <numerusform>%Ln Verstecktes ausgelassen</numerusform>
            <numerusform>%Ln Verstecktes ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of other kinds left out</source>
        <translation>
            <numerusform>%Ln anderer Art ausgelassen</numerusform>
            <numerusform>%Ln anderer Art ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln met twice</source>
        <translation>
            <numerusform>%Ln doppelt angetroffen</numerusform>
            <numerusform>%Ln doppelt angetroffen</numerusform>
        </translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Schon vorhanden</translation>
    </message>
    <message>
        <source>Added, a copy</source>
        <translation>Hinzugefügt, eine Kopie</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <source>Not reached</source>
        <translation>Nicht erreicht</translation>
    </message>
    <message numerus="yes">
        <source>%Ln added</source>
        <translation>
            <numerusform>%Ln hinzugefügt</numerusform>
            <numerusform>%Ln hinzugefügt</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>InfoFacts</name>
    <message>
        <source>%1 frames a second (they vary)</source>
        <translation>%1 Bilder pro Sekunde (schwankend)</translation>
    </message>
    <message>
        <source>%1 frames a second</source>
        <translation>%1 Bilder pro Sekunde</translation>
    </message>
    <message>
        <source>turned by %1 degrees</source>
        <translation>um %1 Grad gedreht</translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation>%1 Bit</translation>
    </message>
    <message>
        <source>%1 channel</source>
        <translation>%1 Kanal</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 Kanäle</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 frame</source>
        <translation>%1 Bild</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 Bilder</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Timecode</source>
        <translation>Timecode</translation>
    </message>
    <message>
        <source>Reel</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>InfoPanel</name>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>The file is missing. Choose where it is now, or have a folder searched for all missing files.</source>
        <translation>Die Datei fehlt. Wählen Sie, wo sie jetzt liegt, oder lassen Sie einen Ordner nach allen fehlenden Dateien durchsuchen.</translation>
    </message>
    <message>
        <source>The file cannot be read. %1</source>
        <translation>Die Datei kann nicht gelesen werden. %1</translation>
    </message>
    <message>
        <source>The file has not been read yet.</source>
        <translation>Die Datei wurde noch nicht gelesen.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Titelbild</translation>
    </message>
    <message>
        <source>Film strip</source>
        <translation>Filmstreifen</translation>
    </message>
    <message>
        <source>Used on</source>
        <translation>Verwendet in</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <comment>timeline, number of uses</comment>
        <translation>%1 (%2-mal)</translation>
    </message>
    <message>
        <source>no timeline</source>
        <translation>keiner Timeline</translation>
    </message>
    <message>
        <source>Nothing is selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message>
        <source>%1 media</source>
        <comment>selected ones</comment>
        <translation>%1 Medien</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>being added up</source>
        <translation>wird zusammengezählt</translation>
    </message>
    <message>
        <source>%1 (not known of %2)</source>
        <translation>%1 (von %2 nicht bekannt)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%Ln media</source>
        <translation>
            <numerusform>%Ln Medium</numerusform>
            <numerusform>%Ln Medien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln ausgewählt</numerusform>
            <numerusform>%Ln ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Brevano projects</source>
        <translation>Brevano-Projekte</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Kopie speichern</translation>
    </message>
    <message>
        <source>Copied to %1</source>
        <translation>Nach %1 kopiert</translation>
    </message>
    <message>
        <source>Brevano %1
The media library of a video editor.
Free software under the GNU Lesser General Public License, version 2.1 or later.</source>
        <translation>Brevano %1
Die Medienbibliothek eines Videoeditors.
Freie Software unter der GNU Lesser General Public License, Version 2.1 oder später.</translation>
    </message>
    <message>
        <source>S&amp;kin</source>
        <translation>Dars&amp;tellung</translation>
    </message>
    <message>
        <source>La&amp;nguage</source>
        <translation>Spr&amp;ache</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>Importbericht</translation>
    </message>
</context>
<context>
    <name>MediaMenu</name>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>S&amp;ynchronize by Sound</source>
        <translation>Nach Ton s&amp;ynchronisieren</translation>
    </message>
</context>
<context>
    <name>MissingSearch</name>
    <message>
        <source>Looking for missing files: %1 seen</source>
        <translation>Fehlende Dateien werden gesucht: %1 gesehen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could be any of these: %2</source>
        <translation>„%1“ könnte jede von diesen sein: %2</translation>
    </message>
    <message>
        <source>%1 of %2 missing files found</source>
        <translation>%1 von %2 fehlenden Dateien gefunden</translation>
    </message>
    <message>
        <source>The search was cancelled. Nothing was relinked.</source>
        <translation>Die Suche wurde abgebrochen. Nichts wurde neu verknüpft.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>NMessageDialog</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>NxEngineImporter</name>
    <message>
        <source>The import was cancelled.</source>
        <translation>Der Import wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The project was closed.</source>
        <translation>Das Projekt wurde geschlossen.</translation>
    </message>
</context>
<context>
    <name>NxEngineMedia</name>
    <message>
        <source>The file is missing.</source>
        <translation>Die Datei fehlt.</translation>
    </message>
    <message>
        <source>The drive does not answer.</source>
        <translation>Das Laufwerk antwortet nicht.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>There is no file of this name, but something else.</source>
        <translation>Unter diesem Namen liegt keine Datei, sondern etwas anderes.</translation>
    </message>
    <message>
        <source>You have no permission to read the file.</source>
        <translation>Sie haben kein Recht, die Datei zu lesen.</translation>
    </message>
</context>
<context>
    <name>NxFolderMediaManagerPresenter</name>
    <message>
        <source>Are you sure you want to delete the selected folder</source>
        <translation>Möchten Sie den ausgewählten Ordner wirklich löschen</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>NxFolderRows</name>
    <message numerus="yes">
        <source>%1, %n media</source>
        <translation>
            <numerusform>%1, %n Medium</numerusform>
            <numerusform>%1, %n Medien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NxFolderTreeView</name>
    <message>
        <source>There is a folder &quot;%1&quot; in &quot;%2&quot; already.</source>
        <translation>In „%2“ gibt es schon einen Ordner „%1“.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be moved to &quot;%2&quot;.</source>
        <translation>Der Ordner „%1“ kann nicht nach „%2“ verschoben werden.</translation>
    </message>
    <message>
        <source>The media cannot be moved to &quot;%1&quot;.</source>
        <translation>Die Medien können nicht nach „%1“ verschoben werden.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>New Folder %1</source>
        <translation>Neuer Ordner %1</translation>
    </message>
    <message>
        <source>No folder can be made in &quot;%1&quot;.</source>
        <translation>In „%1“ kann kein Ordner angelegt werden.</translation>
    </message>
    <message>
        <source>A folder needs a name. &quot;%1&quot; keeps its own.</source>
        <translation>Ein Ordner braucht einen Namen. „%1“ behält seinen.</translation>
    </message>
    <message>
        <source>There is a folder &quot;%2&quot; already. &quot;%1&quot; keeps its name.</source>
        <translation>Es gibt schon einen Ordner „%2“. „%1“ behält seinen Namen.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be called &quot;%2&quot;.</source>
        <translation>Der Ordner „%1“ kann nicht „%2“ heißen.</translation>
    </message>
</context>
<context>
    <name>NxImportJob</name>
    <message>
        <source>The drive does not answer.</source>
        <translation>Das Laufwerk antwortet nicht.</translation>
    </message>
    <message>
        <source>What was imported has been taken back.</source>
        <translation>Was importiert war, wurde zurückgenommen.</translation>
    </message>
    <message>
        <source>The project can no longer be written.</source>
        <translation>Das Projekt kann nicht mehr geschrieben werden.</translation>
    </message>
    <message>
        <source>The folder it was meant for has been removed.</source>
        <translation>Der Ordner, in den es sollte, wurde entfernt.</translation>
    </message>
    <message>
        <source>It is already in &quot;%1&quot;.</source>
        <translation>Es ist schon in „%1“.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made here.</source>
        <translation>Der Ordner „%1“ kann hier nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>NxImportNow</name>
    <message>
        <source>It was named twice.</source>
        <translation>Es wurde zweimal genannt.</translation>
    </message>
    <message>
        <source>It is already in &quot;%1&quot;.</source>
        <translation>Es ist schon in „%1“.</translation>
    </message>
</context>
<context>
    <name>NxImportRules</name>
    <message>
        <source>Files of the type &quot;%1&quot; cannot be imported.</source>
        <translation>Dateien vom Typ „%1“ können nicht importiert werden.</translation>
    </message>
    <message>
        <source>Its name does not tell whether it is media, and files cannot be read yet to find out.</source>
        <translation>Der Name verrät nicht, ob es sich um ein Medium handelt, und Dateien können noch nicht daraufhin gelesen werden.</translation>
    </message>
    <message>
        <source>The name of the folder is blank.</source>
        <translation>Der Name des Ordners ist leer.</translation>
    </message>
    <message>
        <source>The name of the folder is longer than 255 characters.</source>
        <translation>Der Name des Ordners ist länger als 255 Zeichen.</translation>
    </message>
    <message>
        <source>It does not exist.</source>
        <translation>Es existiert nicht.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Es kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>There is no permission to read it.</source>
        <translation>Es fehlt die Berechtigung, es zu lesen.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>It is a pipe, a socket or a device, not a file.</source>
        <translation>Es ist eine Pipe, ein Socket oder ein Gerät, keine Datei.</translation>
    </message>
    <message>
        <source>Its path is too long to be opened.</source>
        <translation>Der Pfad ist zu lang, um geöffnet zu werden.</translation>
    </message>
    <message>
        <source>Its name is not valid UTF-8.</source>
        <translation>Der Name ist kein gültiges UTF-8.</translation>
    </message>
    <message>
        <source>It is a link to something that does not exist.</source>
        <translation>Es ist eine Verknüpfung auf etwas, das nicht existiert.</translation>
    </message>
    <message>
        <source>The folder cannot be read: %1.</source>
        <translation>Der Ordner kann nicht gelesen werden: %1.</translation>
    </message>
</context>
<context>
    <name>NxMediaColumns</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
</context>
<context>
    <name>NxMediaItemGroup</name>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>less than 1min</source>
        <translation>weniger als 1 min</translation>
    </message>
    <message>
        <source>more than 60min</source>
        <translation>mehr als 60 min</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>NxMediaItemManagerPresenter</name>
    <message>
        <source>Unable to locate file. Click &apos;RELOCATE&apos; to try importing the file again, &apos;DELETE&apos; to delete it, or &apos;IGNORE&apos; to abort this operation.</source>
        <translation>Die Datei wurde nicht gefunden. Mit „NEU ZUORDNEN“ versuchen Sie, sie erneut zu importieren, mit „LÖSCHEN“ löschen Sie sie, mit „IGNORIEREN“ brechen Sie diesen Vorgang ab.</translation>
    </message>
    <message>
        <source>RELOCATE</source>
        <translation>NEU ZUORDNEN</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>LÖSCHEN</translation>
    </message>
    <message>
        <source>IGNORE</source>
        <translation>IGNORIEREN</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Neu verknüpfen</translation>
    </message>
    <message>
        <source>%1 cannot be read as media, so it cannot take the place of &quot;%2&quot;.</source>
        <translation>%1 kann nicht als Medium gelesen werden und daher „%2“ nicht ersetzen.</translation>
    </message>
    <message>
        <source>The selected file&apos;s duration is different from the clip you used in project and may cause issues, please reselect another file with the same duration.</source>
        <translation>Die Dauer der ausgewählten Datei weicht von der des Clips im Projekt ab, was zu Problemen führen kann. Bitte wählen Sie eine andere Datei mit derselben Dauer.</translation>
    </message>
    <message>
        <source>There is not enough space in the specified output directory, please choose another one.
Dise Space needed :%1 MB, remaining:%2 MB.</source>
        <translation>Im angegebenen Ausgabeordner ist nicht genug Platz, bitte wählen Sie einen anderen.
Benötigter Speicherplatz: %1 MB, verbleibend: %2 MB.</translation>
    </message>
    <message>
        <source>Auto Synchronization</source>
        <translation>Automatische Synchronisierung</translation>
    </message>
    <message>
        <source>The selected clips cannot be synchronized, please reselect the clips.</source>
        <translation>Die ausgewählten Clips können nicht synchronisiert werden, bitte wählen Sie andere Clips.</translation>
    </message>
    <message>
        <source>After the audio and video are synced, the audio and video will be added to the timeline simultaneously. Do you want to mute the original audio within the video file automatically?</source>
        <translation>Nach der Synchronisierung werden Audio und Video gemeinsam zur Timeline hinzugefügt. Soll der Originalton der Videodatei automatisch stummgeschaltet werden?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected item?</source>
        <translation>Möchten Sie das ausgewählte Element wirklich löschen?</translation>
    </message>
    <message>
        <source>Stop asking for now.</source>
        <translation>Vorerst nicht mehr fragen.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected matter?</source>
        <translation>Möchten Sie das ausgewählte Material wirklich löschen?</translation>
    </message>
    <message>
        <source>Deleting the file will affect the used project. You can retrieve it by downloading the record</source>
        <translation>Das Löschen der Datei wirkt sich auf Projekte aus, die sie verwenden. Über die Liste der Downloads können Sie sie zurückholen</translation>
    </message>
    <message>
        <source>One or more of your selected clips have been added to the timeline. Deleting them from the library will also delete them from the timeline.</source>
        <translation>Mindestens einer der ausgewählten Clips wurde zur Timeline hinzugefügt. Wenn Sie ihn aus der Bibliothek löschen, wird er auch aus der Timeline gelöscht.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the custom project template item &quot;%1?&quot;</source>
        <translation>Möchten Sie die eigene Projektvorlage „%1“ wirklich löschen?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be relinked to %2.</source>
        <translation>„%1“ kann nicht mit %2 verknüpft werden.</translation>
    </message>
</context>
<context>
    <name>NxMediaItemModel</name>
    <message>
        <source>View More</source>
        <translation>Mehr anzeigen</translation>
    </message>
    <message>
        <source>Import Media</source>
        <translation>Medien importieren</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Verwendet</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>In Point</source>
        <translation>In-Punkt</translation>
    </message>
    <message>
        <source>Out Point</source>
        <translation>Out-Punkt</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Audio Info</source>
        <translation>Audioinfo</translation>
    </message>
    <message>
        <source>Date Created</source>
        <translation>Erstellungsdatum</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Find Similar</source>
        <translation>Ähnliche suchen</translation>
    </message>
</context>
<context>
    <name>NxMediaItemPainter</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Übergang</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effekt</translation>
    </message>
    <message>
        <source>Split screen</source>
        <translation>Splitscreen</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
</context>
<context>
    <name>NxMediaItemView</name>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>used</source>
        <comment>A media</comment>
        <translation>verwendet</translation>
    </message>
    <message>
        <source>missing</source>
        <comment>A media</comment>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
</context>
<context>
    <name>NxMediaLibraryUtils</name>
    <message>
        <source>HEVC Codec must be installed to solve this failure. Clicking Yes will install and enabled this codec for immediate use.</source>
        <translation>Um diesen Fehler zu beheben, muss der HEVC-Codec installiert werden. Mit „Ja“ wird er installiert und sofort aktiviert.</translation>
    </message>
</context>
<context>
    <name>NxMediaNotice</name>
    <message>
        <source>No folder is shown</source>
        <translation>Kein Ordner wird gezeigt</translation>
    </message>
    <message>
        <source>Choose a folder to see its media.</source>
        <translation>Wählen Sie einen Ordner, um seine Medien zu sehen.</translation>
    </message>
    <message>
        <source>This folder is empty</source>
        <translation>Dieser Ordner ist leer</translation>
    </message>
    <message>
        <source>Drop files here or import them.</source>
        <translation>Ziehen Sie Dateien hierher, oder importieren Sie sie.</translation>
    </message>
    <message>
        <source>Files cannot be imported into it.</source>
        <translation>In ihn können keine Dateien importiert werden.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>The search found no media.</source>
        <translation>Die Suche hat keine Medien gefunden.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen...</translation>
    </message>
    <message>
        <source>The media of this folder are on their way.</source>
        <translation>Die Medien dieses Ordners sind unterwegs.</translation>
    </message>
    <message>
        <source>Loading failed</source>
        <translation>Laden fehlgeschlagen</translation>
    </message>
    <message>
        <source>The media of this folder did not arrive.</source>
        <translation>Die Medien dieses Ordners sind nicht angekommen.</translation>
    </message>
    <message>
        <source>Nothing here has a name that holds &quot;%1&quot;.</source>
        <translation>Kein Name enthält hier „%1“.</translation>
    </message>
    <message>
        <source>Nothing here is a video.</source>
        <translation>Hier ist kein Video.</translation>
    </message>
    <message>
        <source>Nothing here is a video whose name holds &quot;%1&quot;.</source>
        <translation>Hier ist kein Video, dessen Name „%1“ enthält.</translation>
    </message>
    <message>
        <source>Nothing here is a photo.</source>
        <translation>Hier ist kein Foto.</translation>
    </message>
    <message>
        <source>Nothing here is a photo whose name holds &quot;%1&quot;.</source>
        <translation>Hier ist kein Foto, dessen Name „%1“ enthält.</translation>
    </message>
    <message>
        <source>Nothing here is audio.</source>
        <translation>Hier ist kein Audio.</translation>
    </message>
    <message>
        <source>Nothing here is audio whose name holds &quot;%1&quot;.</source>
        <translation>Hier ist kein Audio, dessen Name „%1“ enthält.</translation>
    </message>
    <message>
        <source>Nothing here is a subtitle.</source>
        <translation>Hier ist kein Untertitel.</translation>
    </message>
    <message>
        <source>Nothing here is a subtitle whose name holds &quot;%1&quot;.</source>
        <translation>Hier ist kein Untertitel, dessen Name „%1“ enthält.</translation>
    </message>
    <message>
        <source>Nothing here passes the filter.</source>
        <translation>Nichts hier entspricht dem Filter.</translation>
    </message>
    <message>
        <source>Nothing here passes the filter with &quot;%1&quot; in its name.</source>
        <translation>Nichts hier mit „%1“ im Namen entspricht dem Filter.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Aufheben</translation>
    </message>
    <message>
        <source>Show all media of the folder</source>
        <translation>Alle Medien des Ordners zeigen</translation>
    </message>
</context>
<context>
    <name>NxMediaPanelBinder</name>
    <message>
        <source>&quot;%1&quot; cannot be renamed to &quot;%2&quot;.</source>
        <translation>„%1“ kann nicht in „%2“ umbenannt werden.</translation>
    </message>
</context>
<context>
    <name>NxPictureService</name>
    <message>
        <source>The picture was made but cannot be loaded from the cache folder.</source>
        <translation>Das Bild wurde erzeugt, kann aber nicht aus dem Cacheordner geladen werden.</translation>
    </message>
</context>
<context>
    <name>NxPreviewPlayer</name>
    <message>
        <source>Playing the file takes too much memory.</source>
        <translation>Das Abspielen der Datei braucht zu viel Arbeitsspeicher.</translation>
    </message>
    <message>
        <source>Playing the file crashed its player.</source>
        <translation>Beim Abspielen der Datei ist die Wiedergabe abgestürzt.</translation>
    </message>
    <message>
        <source>Playing the file took too long.</source>
        <translation>Das Abspielen der Datei hat zu lange gedauert.</translation>
    </message>
    <message>
        <source>The program that plays films said nothing.</source>
        <translation>Das Programm, das Filme abspielt, hat nicht geantwortet.</translation>
    </message>
</context>
<context>
    <name>NxProjectStore</name>
    <message>
        <source>the facts of its footage break off</source>
        <translation>die Angaben zum Filmmaterial brechen ab</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>folders %1 and %2 lie in one folder and have one name</source>
        <translation>die Ordner %1 und %2 liegen im selben Ordner und haben denselben Namen</translation>
    </message>
    <message>
        <source>a file of this name is there already</source>
        <translation>eine Datei dieses Namens ist schon vorhanden</translation>
    </message>
    <message>
        <source>is not a Brevano project: %1</source>
        <translation>ist kein Brevano-Projekt: %1</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>is damaged: its beginning holds only zeros</source>
        <translation>ist beschädigt: Der Anfang enthält nur Nullen</translation>
    </message>
    <message>
        <source>it is another kind of file</source>
        <translation>es ist eine andere Art von Datei</translation>
    </message>
    <message>
        <source>it is a database of another program</source>
        <translation>es ist die Datenbank eines anderen Programms</translation>
    </message>
    <message>
        <source>stands in a folder that cannot be written</source>
        <translation>liegt in einem Ordner, in den nicht geschrieben werden kann</translation>
    </message>
    <message>
        <source>cannot be written, since no lock can be made beside it</source>
        <translation>kann nicht geschrieben werden, weil daneben keine Sperrdatei angelegt werden kann</translation>
    </message>
    <message>
        <source>is open in another window</source>
        <translation>ist in einem anderen Fenster geöffnet</translation>
    </message>
    <message>
        <source>is open in another window (process %1 on host %2)</source>
        <translation>ist in einem anderen Fenster geöffnet (Prozess %1 auf Rechner %2)</translation>
    </message>
    <message>
        <source>; if that computer no longer runs it, remove %1</source>
        <translation>; falls es auf jenem Rechner nicht mehr läuft, entfernen Sie %1</translation>
    </message>
    <message>
        <source>cannot be made: a file of this name is there already</source>
        <translation>kann nicht angelegt werden: Eine Datei dieses Namens ist schon vorhanden</translation>
    </message>
    <message>
        <source>cannot be made: there is no such folder</source>
        <translation>kann nicht angelegt werden: Den Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>cannot be made: its folder is write-protected</source>
        <translation>kann nicht angelegt werden: Der Ordner ist schreibgeschützt</translation>
    </message>
    <message>
        <source>cannot be made: its name is too long</source>
        <translation>kann nicht angelegt werden: Der Name ist zu lang</translation>
    </message>
    <message numerus="yes">
        <source>entries with impossible values are left out: %n</source>
        <translation>
            <numerusform>Einträge mit unmöglichen Werten wurden ausgelassen: %n</numerusform>
            <numerusform>Einträge mit unmöglichen Werten wurden ausgelassen: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>its counters cannot be read</source>
        <translation>die Zähler können nicht gelesen werden</translation>
    </message>
    <message>
        <source>the list of folders breaks off</source>
        <translation>die Liste der Ordner bricht ab</translation>
    </message>
    <message>
        <source>the list of media breaks off</source>
        <translation>die Liste der Medien bricht ab</translation>
    </message>
    <message>
        <source>the list of resources breaks off</source>
        <translation>die Liste der Ressourcen bricht ab</translation>
    </message>
    <message>
        <source>the list of timelines breaks off</source>
        <translation>die Liste der Timelines bricht ab</translation>
    </message>
    <message>
        <source>the list of clips breaks off</source>
        <translation>die Liste der Clips bricht ab</translation>
    </message>
    <message>
        <source>the undo steps break off</source>
        <translation>die Schritte zum Rückgängigmachen brechen ab</translation>
    </message>
    <message>
        <source>the place within the undo steps is impossible</source>
        <translation>die Stelle innerhalb der Schritte zum Rückgängigmachen ist unmöglich</translation>
    </message>
    <message>
        <source>was made by a newer version (schema %1, this program knows %2)</source>
        <translation>wurde mit einer neueren Version erstellt (Schema %1, dieses Programm kennt %2)</translation>
    </message>
    <message>
        <source>a temporary copy cannot be made: %1</source>
        <translation>eine temporäre Kopie kann nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>es ist abgeschnitten</translation>
    </message>
    <message>
        <source>is not a Brevano project: it is a database of another program</source>
        <translation>ist kein Brevano-Projekt: Es ist die Datenbank eines anderen Programms</translation>
    </message>
    <message>
        <source>is damaged: its structure cannot be read</source>
        <translation>ist beschädigt: Die Struktur kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>is damaged: %1</source>
        <translation>ist beschädigt: %1</translation>
    </message>
    <message>
        <source>its path is too long</source>
        <translation>der Pfad ist zu lang</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>was opened for reading only</source>
        <translation>wurde nur zum Lesen geöffnet</translation>
    </message>
    <message>
        <source>is write-protected</source>
        <translation>ist schreibgeschützt</translation>
    </message>
    <message>
        <source>is closed</source>
        <translation>ist geschlossen</translation>
    </message>
    <message>
        <source>it does not hold entry %1</source>
        <translation>der Eintrag %1 ist nicht enthalten</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>es ist schreibgeschützt</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>es ist beschädigt</translation>
    </message>
    <message>
        <source>it is not a Brevano project</source>
        <translation>es ist kein Brevano-Projekt</translation>
    </message>
    <message>
        <source>another program holds it</source>
        <translation>ein anderes Programm hält es fest</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>es ist nicht genug Arbeitsspeicher vorhanden</translation>
    </message>
    <message>
        <source>a text is too long for it</source>
        <translation>ein Text ist zu lang dafür</translation>
    </message>
    <message>
        <source>the disk quota is used up</source>
        <translation>das Speicherkontingent ist aufgebraucht</translation>
    </message>
    <message>
        <source>its drive is write-protected</source>
        <translation>das Laufwerk ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the drive reports an error</source>
        <translation>das Laufwerk meldet einen Fehler</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>eine solche Datei gibt es nicht</translation>
    </message>
    <message>
        <source>its drive is gone</source>
        <translation>das Laufwerk ist nicht mehr da</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>cannot be written as a copy: %1</source>
        <translation>kann nicht als Kopie geschrieben werden: %1</translation>
    </message>
    <message>
        <source>cannot be removed: %1</source>
        <translation>kann nicht entfernt werden: %1</translation>
    </message>
    <message>
        <source>clips %1 and %2 cover each other</source>
        <translation>die Clips %1 und %2 überdecken einander</translation>
    </message>
</context>
<context>
    <name>NxRelinkJob</name>
    <message>
        <source>The drive does not answer.</source>
        <translation>Das Laufwerk antwortet nicht.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Es ist kein Ordner.</translation>
    </message>
    <message>
        <source>Not all files could be compared. %1</source>
        <translation>Nicht alle Dateien konnten verglichen werden. %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was left out. %2</source>
        <translation>„%1“ wurde ausgelassen. %2</translation>
    </message>
</context>
<context>
    <name>NxResourceCatalogue</name>
    <message>
        <source>Project Media</source>
        <translation>Projektmedien</translation>
    </message>
    <message>
        <source>Shared Media</source>
        <translation>Gemeinsame Medien</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Heruntergeladen</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Download Records</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>Calm Loop %1</source>
        <translation>Ruhige Schleife %1</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Ruhig</translation>
    </message>
    <message>
        <source>Driving Beat %1</source>
        <translation>Treibender Beat %1</translation>
    </message>
    <message>
        <source>Beats</source>
        <translation>Beats</translation>
    </message>
    <message>
        <source>Street Sound %1</source>
        <translation>Straßengeräusch %1</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Geräusche</translation>
    </message>
    <message>
        <source>Lower Third %1</source>
        <translation>Bauchbinde %1</translation>
    </message>
    <message>
        <source>Lower Thirds</source>
        <translation>Bauchbinden</translation>
    </message>
    <message>
        <source>Opener %1</source>
        <translation>Vorspann %1</translation>
    </message>
    <message>
        <source>Openers</source>
        <translation>Vorspanne</translation>
    </message>
    <message>
        <source>Credits %1</source>
        <translation>Abspann %1</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Abspann</translation>
    </message>
    <message>
        <source>Dissolve %1</source>
        <translation>Überblendung %1</translation>
    </message>
    <message>
        <source>Dissolves</source>
        <translation>Überblendungen</translation>
    </message>
    <message>
        <source>Wipe %1</source>
        <translation>Wischblende %1</translation>
    </message>
    <message>
        <source>Wipes</source>
        <translation>Wischblenden</translation>
    </message>
    <message>
        <source>Slide %1</source>
        <translation>Schiebeblende %1</translation>
    </message>
    <message>
        <source>Slides</source>
        <translation>Schiebeblenden</translation>
    </message>
    <message>
        <source>Blur %1</source>
        <translation>Unschärfe %1</translation>
    </message>
    <message>
        <source>Blurs</source>
        <translation>Unschärfen</translation>
    </message>
    <message>
        <source>Film Look %1</source>
        <translation>Filmlook %1</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>Looks</translation>
    </message>
    <message>
        <source>Glow %1</source>
        <translation>Leuchten %1</translation>
    </message>
    <message>
        <source>Glows</source>
        <translation>Leuchten</translation>
    </message>
    <message>
        <source>Arrow %1</source>
        <translation>Pfeil %1</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Pfeile</translation>
    </message>
    <message>
        <source>Sticker %1</source>
        <translation>Sticker %1</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Rahmen %1</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Two Pictures %1</source>
        <translation>Zwei Bilder %1</translation>
    </message>
    <message>
        <source>Two Pictures</source>
        <translation>Zwei Bilder</translation>
    </message>
    <message>
        <source>Three Pictures %1</source>
        <translation>Drei Bilder %1</translation>
    </message>
    <message>
        <source>Three Pictures</source>
        <translation>Drei Bilder</translation>
    </message>
    <message>
        <source>Four Pictures %1</source>
        <translation>Vier Bilder %1</translation>
    </message>
    <message>
        <source>Four Pictures</source>
        <translation>Vier Bilder</translation>
    </message>
    <message>
        <source>City Clip %1</source>
        <translation>Stadtclip %1</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Städte</translation>
    </message>
    <message>
        <source>Nature Picture %1</source>
        <translation>Naturbild %1</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>Natur</translation>
    </message>
    <message>
        <source>Reaction %1</source>
        <translation>Reaktion %1</translation>
    </message>
    <message>
        <source>Reactions</source>
        <translation>Reaktionen</translation>
    </message>
    <message>
        <source>Stock Picture %1</source>
        <translation>Stockbild %1</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Stock Clip %1</source>
        <translation>Stockclip %1</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>Stock Track %1</source>
        <translation>Stockmusik %1</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Musikstücke</translation>
    </message>
    <message>
        <source>Travel Template %1</source>
        <translation>Reisevorlage %1</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Reisen</translation>
    </message>
    <message>
        <source>Family Template %1</source>
        <translation>Familienvorlage %1</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
</context>
<context>
    <name>NxWorkerLocation</name>
    <message>
        <source>The program that reads footage is not installed; it was looked for as %1.</source>
        <translation>Das Programm, das Filmmaterial liest, ist nicht installiert; gesucht wurde es als %1.</translation>
    </message>
</context>
<context>
    <name>NxWorkerPool</name>
    <message>
        <source>Reading the file takes too much memory.</source>
        <translation>Das Lesen der Datei braucht zu viel Arbeitsspeicher.</translation>
    </message>
    <message>
        <source>Reading the file crashed its reader.</source>
        <translation>Beim Lesen der Datei ist das Leseprogramm abgestürzt.</translation>
    </message>
    <message>
        <source>%1 was started and said nothing.</source>
        <translation>%1 wurde gestartet und hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>Reading the file took too long.</source>
        <translation>Das Lesen der Datei hat zu lange gedauert.</translation>
    </message>
    <message>
        <source>The drive does not answer.</source>
        <translation>Das Laufwerk antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>NxWorkerProcess</name>
    <message>
        <source>%1 does not speak as it should.</source>
        <translation>%1 antwortet nicht so, wie es sollte.</translation>
    </message>
    <message>
        <source>%1 speaks version %2, this program version %3: they are not of one installation.</source>
        <translation>%1 spricht Version %2, dieses Programm Version %3: Sie gehören nicht zur selben Installation.</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2.</source>
        <translation>%1 kann nicht gestartet werden: %2.</translation>
    </message>
    <message>
        <source>%1 took too much memory.</source>
        <translation>%1 hat zu viel Arbeitsspeicher gebraucht.</translation>
    </message>
    <message>
        <source>%1 ended with code %2.</source>
        <translation>%1 endete mit Code %2.</translation>
    </message>
</context>
<context>
    <name>PanelActions</name>
    <message>
        <source>&amp;New Project...</source>
        <translation>&amp;Neues Projekt...</translation>
    </message>
    <message>
        <source>&amp;Open Project...</source>
        <translation>Projekt ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Save a &amp;Copy...</source>
        <translation>&amp;Kopie speichern...</translation>
    </message>
    <message>
        <source>C&amp;lose Project</source>
        <translation>Projekt &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Import Files...</source>
        <translation>Dateien &amp;importieren...</translation>
    </message>
    <message>
        <source>Import &amp;Folder...</source>
        <translation>&amp;Ordner importieren...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Copy Name</source>
        <translation>Namen &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Pas&amp;te</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Select &amp;Nothing</source>
        <translation>&amp;Nichts auswählen</translation>
    </message>
    <message>
        <source>R&amp;ename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete from Project</source>
        <translation>Aus Projekt &amp;löschen</translation>
    </message>
    <message>
        <source>Delete Unu&amp;sed Media...</source>
        <translation>Unbenutzte &amp;Medien löschen...</translation>
    </message>
    <message>
        <source>New F&amp;older</source>
        <translation>Neuer &amp;Ordner</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Clear Filters</source>
        <translation>&amp;Filter aufheben</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>Small Thumb&amp;nails</source>
        <translation>&amp;Kleine Vorschaubilder</translation>
    </message>
    <message>
        <source>&amp;Medium Thumbnails</source>
        <translation>&amp;Mittlere Vorschaubilder</translation>
    </message>
    <message>
        <source>La&amp;rge Thumbnails</source>
        <translation>&amp;Große Vorschaubilder</translation>
    </message>
    <message>
        <source>Lar&amp;ger</source>
        <translation>G&amp;rößer</translation>
    </message>
    <message>
        <source>Sm&amp;aller</source>
        <translation>Kl&amp;einer</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>A&amp;bsteigend sortieren</translation>
    </message>
    <message>
        <source>Groups D&amp;escending</source>
        <translation>Gru&amp;ppen absteigend</translation>
    </message>
    <message>
        <source>&amp;Folders</source>
        <translation>Ord&amp;ner</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Informationen</translation>
    </message>
    <message>
        <source>Import Re&amp;port</source>
        <translation>Importberi&amp;cht</translation>
    </message>
    <message>
        <source>Dar&amp;k</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Ligh&amp;t</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Add to Timeline</source>
        <translation>Zur &amp;Timeline hinzufügen</translation>
    </message>
    <message>
        <source>Re&amp;link...</source>
        <translation>&amp;Neu verknüpfen...</translation>
    </message>
    <message>
        <source>Find &amp;Missing Files...</source>
        <translation>&amp;Fehlende Dateien suchen...</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>Erneut &amp;lesen</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>Im Datei&amp;manager zeigen</translation>
    </message>
    <message>
        <source>&amp;Find in Folder</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About Brevano</source>
        <translation>Ü&amp;ber Brevano</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Medien</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Delete Media</source>
        <translation>Medien löschen</translation>
    </message>
    <message>
        <source>Move Media</source>
        <translation>Medien verschieben</translation>
    </message>
    <message>
        <source>Rename Media</source>
        <translation>Medium umbenennen</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Neu verknüpfen</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Delete Folder</source>
        <translation>Ordner löschen</translation>
    </message>
    <message>
        <source>Move Folder</source>
        <translation>Ordner verschieben</translation>
    </message>
    <message>
        <source>Rename Folder</source>
        <translation>Ordner umbenennen</translation>
    </message>
    <message>
        <source>Add to Timeline</source>
        <translation>Zur Timeline hinzufügen</translation>
    </message>
    <message>
        <source>Add Split Screen</source>
        <translation>Splitscreen hinzufügen</translation>
    </message>
    <message>
        <source>Fill Split Screen</source>
        <translation>Splitscreen füllen</translation>
    </message>
    <message>
        <source>Add Composite Timeline</source>
        <translation>Verschachtelte Timeline hinzufügen</translation>
    </message>
    <message>
        <source>Move Clip</source>
        <translation>Clip verschieben</translation>
    </message>
    <message>
        <source>Delete Clip</source>
        <translation>Clip löschen</translation>
    </message>
    <message>
        <source>New Timeline</source>
        <translation>Neue Timeline</translation>
    </message>
    <message>
        <source>Delete Timeline</source>
        <translation>Timeline löschen</translation>
    </message>
    <message>
        <source>Rename Timeline</source>
        <translation>Timeline umbenennen</translation>
    </message>
</context>
<context>
    <name>PanelView</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>ProjectDialogs</name>
    <message>
        <source>There is no project &quot;%1&quot;.</source>
        <translation>Es gibt kein Projekt „%1“.</translation>
    </message>
    <message>
        <source>It may have been moved or renamed, or its drive is not connected. Do you want to make a new project there?</source>
        <translation>Es wurde vielleicht verschoben oder umbenannt, oder das Laufwerk ist nicht verbunden. Möchten Sie dort ein neues Projekt anlegen?</translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Neues Projekt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ProjectHolder</name>
    <message>
        <source>No project was named.</source>
        <translation>Es wurde kein Projekt genannt.</translation>
    </message>
    <message>
        <source>There is no project &quot;%1&quot;.</source>
        <translation>Es gibt kein Projekt „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already.</source>
        <translation>„%1“ ist schon vorhanden.</translation>
    </message>
    <message>
        <source>No project is open.</source>
        <translation>Es ist kein Projekt geöffnet.</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (schreibgeschützt)</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>No Recent Projects</source>
        <translation>Keine zuletzt geöffneten Projekte</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>Show only media whose name holds this text</source>
        <translation>Nur Medien zeigen, deren Name diesen Text enthält</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n gefunden</numerusform>
            <numerusform>%n gefunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ShortcutSheet</name>
    <message>
        <source>Go to the next media</source>
        <translation>Zum nächsten Medium</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Go to the first or the last media</source>
        <translation>Zum ersten oder letzten Medium</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Pos1, Ende</translation>
    </message>
    <message>
        <source>Turn a page</source>
        <translation>Eine Seite blättern</translation>
    </message>
    <message>
        <source>Page Up, Page Down</source>
        <translation>Bild auf, Bild ab</translation>
    </message>
    <message>
        <source>Go to a name</source>
        <translation>Zu einem Namen</translation>
    </message>
    <message>
        <source>Type how it begins</source>
        <translation>Den Anfang tippen</translation>
    </message>
    <message>
        <source>Select as far as there</source>
        <translation>Bis dorthin auswählen</translation>
    </message>
    <message>
        <source>Shift + arrow keys, Shift + click</source>
        <translation>Umschalt + Pfeiltasten, Umschalt + Klick</translation>
    </message>
    <message>
        <source>Select one more, or one less</source>
        <translation>Eines mehr oder weniger auswählen</translation>
    </message>
    <message>
        <source>Ctrl + Space, Ctrl + click</source>
        <translation>Strg + Leertaste, Strg + Klick</translation>
    </message>
    <message>
        <source>Select the media, fold or unfold a group</source>
        <translation>Das Medium auswählen, eine Gruppe auf- oder zuklappen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Fold or unfold a group</source>
        <translation>Eine Gruppe auf- oder zuklappen</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>Links, Rechts</translation>
    </message>
    <message>
        <source>Open the media</source>
        <translation>Das Medium öffnen</translation>
    </message>
    <message>
        <source>Return, double click</source>
        <translation>Eingabetaste, Doppelklick</translation>
    </message>
    <message>
        <source>Look through the media</source>
        <translation>Das Medium durchsehen</translation>
    </message>
    <message>
        <source>Shift + move the pointer over it</source>
        <translation>Umschalt + Zeiger darüber bewegen</translation>
    </message>
    <message>
        <source>Make thumbnails larger or smaller</source>
        <translation>Vorschaubilder vergrößern oder verkleinern</translation>
    </message>
    <message>
        <source>Ctrl + mouse wheel</source>
        <translation>Strg + Mausrad</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>In the list of media</source>
        <translation>In der Medienliste</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Make a project, or open one</source>
        <translation>Legen Sie ein Projekt an, oder öffnen Sie eines</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Zuletzt geöffnete Projekte</translation>
    </message>
</context>
<context>
    <name>TimelineDesk</name>
    <message>
        <source>There is no timeline to add to.</source>
        <translation>Es gibt keine Timeline, zu der hinzugefügt werden könnte.</translation>
    </message>
    <message>
        <source>Timeline 1</source>
        <translation>Timeline 1</translation>
    </message>
    <message>
        <source>No timeline can be made.</source>
        <translation>Es kann keine Timeline angelegt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be added to &quot;%2&quot;.</source>
        <translation>„%1“ kann nicht zu „%2“ hinzugefügt werden.</translation>
    </message>
</context>
<context>
    <name>ToolRow</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Verwendet</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>In Point</source>
        <translation>In-Punkt</translation>
    </message>
    <message>
        <source>Out Point</source>
        <translation>Out-Punkt</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Audio Info</source>
        <translation>Audioinfo</translation>
    </message>
    <message>
        <source>Date Created</source>
        <translation>Erstellungsdatum</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Neueste</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Order of Import</source>
        <translation>Importreihenfolge</translation>
    </message>
    <message>
        <source>No Groups</source>
        <translation>Keine Gruppen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Sortierung: %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>No folder is shown that could be grouped</source>
        <translation>Es wird kein Ordner gezeigt, der gruppiert werden könnte</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Gruppierung: %1</translation>
    </message>
    <message>
        <source>What a search finds is not grouped</source>
        <translation>Suchergebnisse werden nicht gruppiert</translation>
    </message>
    <message>
        <source>Media of this folder are shown in the order of its service, without groups</source>
        <translation>Die Medien dieses Ordners stehen in der Reihenfolge des Dienstes, ohne Gruppen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Import files or folders</source>
        <translation>Dateien oder Ordner importieren</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <source>More tools</source>
        <translation>Weitere Werkzeuge</translation>
    </message>
</context>
<context>
    <name>ToolTip</name>
    <message>
        <source>Click to download the online content</source>
        <translation>Klicken, um den Onlineinhalt herunterzuladen</translation>
    </message>
    <message>
        <source>Drag to the timeline to apply</source>
        <translation>Zum Anwenden auf die Timeline ziehen</translation>
    </message>
    <message>
        <source>Media: %1</source>
        <translation>Medien: %1</translation>
    </message>
</context>
<context>
    <name>WindowDeeds</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>%1 &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>%1 &amp;wiederholen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Import Files</source>
        <translation>Dateien importieren</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>Ordner importieren</translation>
    </message>
    <message>
        <source>The clipboard holds no files.</source>
        <translation>Die Zwischenablage enthält keine Dateien.</translation>
    </message>
    <message>
        <source>All media of this folder are used.</source>
        <translation>Alle Medien dieses Ordners werden verwendet.</translation>
    </message>
    <message numerus="yes">
        <source>%n added to &quot;%1&quot;</source>
        <translation>
            <numerusform>%n zu „%1“ hinzugefügt</numerusform>
            <numerusform>%n zu „%1“ hinzugefügt</numerusform>
        </translation>
    </message>
    <message>
        <source>No file of this folder is missing.</source>
        <translation>In diesem Ordner fehlt keine Datei.</translation>
    </message>
    <message>
        <source>Find Missing Files In</source>
        <translation>Fehlende Dateien suchen in</translation>
    </message>
    <message>
        <source>A search is running already.</source>
        <translation>Es läuft schon eine Suche.</translation>
    </message>
</context>
</TS>
