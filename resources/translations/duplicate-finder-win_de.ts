<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>CustomProgressDialog</name>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="34"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="91"/>
        <source>Cancelling...</source>
        <translation>Wird abgebrochen...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="333"/>
        <source>Files scanned</source>
        <translation>Gescannte Dateien</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="334"/>
        <source>Duplicates found</source>
        <translation>Gefundene Duplikate</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="335"/>
        <source>Size of duplicates</source>
        <translation>Größe der Duplikate</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="336"/>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="337"/>
        <source>Elapsed time</source>
        <translation>Verstrichene Zeit</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="385"/>
        <source>Local Computer</source>
        <translation>Lokaler Computer</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="408"/>
        <source>User Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="409"/>
        <source>Product FAQ</source>
        <translation>Häufige Fragen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="410"/>
        <source>Feedback and Support</source>
        <translation>Feedback und Support</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="411"/>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="412"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1132"/>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="413"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1150"/>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="425"/>
        <source>Show Log in Explorer</source>
        <translation>Protokoll im Explorer anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="428"/>
        <source>Save Project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="429"/>
        <source>Show Results</source>
        <translation>Ergebnisse anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="468"/>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="481"/>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="489"/>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="495"/>
        <source>New Scan</source>
        <translation>Neuer Scan</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="500"/>
        <source>Show results</source>
        <translation>Ergebnisse anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="557"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation>„%1“ ist eine Datei, kein Ordner. Nur Ordner können gescannt werden: Fügen Sie stattdessen den Ordner hinzu, in dem sie liegt.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="561"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation>„%1“ wurde nicht gefunden. Es wurde möglicherweise verschoben oder entfernt.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="564"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>%n Element wurde nicht hinzugefügt, weil es kein Ordner ist:</numerusform>
            <numerusform>%n Elemente wurden nicht hinzugefügt, weil sie keine Ordner sind:</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="566"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="616"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="633"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="699"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1072"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1099"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1209"/>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="587"/>
        <source>%n folder(s) added</source>
        <translation>
            <numerusform>%n Ordner hinzugefügt</numerusform>
            <numerusform>%n Ordner hinzugefügt</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="617"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="700"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>Nachdem Cloud-Konten und -Ordner hinzugefügt wurden, können keine lokalen Ordner mehr hinzugefügt werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="621"/>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="634"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>Nachdem lokale Ordner hinzugefügt wurden, können keine Cloud-Konten mehr hinzugefügt werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="831"/>
        <source>%1 and %2 could not be read.</source>
        <translation>%1 und %2 konnten nicht gelesen werden.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="832"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n Ordner</numerusform>
            <numerusform>%n Ordner</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="832"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="834"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>%n Ordner konnte nicht gelesen werden.</numerusform>
            <numerusform>%n Ordner konnten nicht gelesen werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="836"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>%n Datei konnte nicht gelesen werden.</numerusform>
            <numerusform>%n Dateien konnten nicht gelesen werden.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="857"/>
        <source>Folders that could not be read</source>
        <translation>Ordner, die nicht gelesen werden konnten</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="858"/>
        <source>Files that could not be read</source>
        <translation>Dateien, die nicht gelesen werden konnten</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="859"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation>Nicht verfolgte Verknüpfungen, weil sie aus den gewählten Ordnern herausführen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="861"/>
        <source>System folders not entered</source>
        <translation>Nicht betretene Systemordner</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="869"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>%n Verknüpfung aus den gewählten Ordnern heraus wurde nicht verfolgt.</numerusform>
            <numerusform>%n Verknüpfungen aus den gewählten Ordnern heraus wurden nicht verfolgt.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="876"/>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="885"/>
        <source>The chosen folder could not be read.</source>
        <translation>Der gewählte Ordner konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="886"/>
        <source>The chosen folders could not be read.</source>
        <translation>Die gewählten Ordner konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="888"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation>Prüfen Sie, ob er noch vorhanden ist und ob Sie ihn öffnen dürfen.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="889"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation>Prüfen Sie, ob sie noch vorhanden sind und ob Sie sie öffnen dürfen.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="908"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1006"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1059"/>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="909"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation>„%1“ ist ein Ordner, keine Projektdatei. Um ihn zu scannen, fügen Sie ihn mit der Schaltfläche + hinzu.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="912"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation>Die Projektdatei „%1“ existiert nicht.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1019"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1058"/>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1072"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>Die Ergebnisse eines Cloud-Scans können nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1100"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1210"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>Die aktuellen Scanergebnisse wurden nicht gespeichert. Möchten Sie die Datei speichern?</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1133"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;Version %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1151"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>Die neue Sprache wird beim nächsten Start des Programms wirksam.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1199"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>Unerwartetes Beenden während des letzten Löschvorgangs erkannt</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1194"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Vor dem Abbruch bearbeitete Elemente: %1 von %2.&lt;br&gt;Das Löschprotokoll führt jedes einzelne auf und wohin es ging:&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1185"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>Das Programm wurde während des letzten Stapel-Löschvorgangs unerwartet beendet,&lt;br&gt;möglicherweise durch Störungen einer Antivirensoftware.&lt;br&gt;&lt;br&gt;Deaktivieren Sie Ihr Antivirenprogramm vorübergehend oder fügen Sie diese Anwendung&lt;br&gt;zu seiner Ausnahmeliste hinzu, um Löschfehler oder Abstürze zu vermeiden.</translation>
    </message>
</context>
<context>
    <name>PicturePreviewDialog</name>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="22"/>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="34"/>
        <source>Chosen copy</source>
        <translation>Gewählte Kopie</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="36"/>
        <source>Compared with</source>
        <translation>Verglichen mit</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="42"/>
        <source>Previous copy (Left arrow)</source>
        <translation>Vorherige Kopie (Pfeiltaste links)</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="50"/>
        <source>Next copy (Right arrow)</source>
        <translation>Nächste Kopie (Pfeiltaste rechts)</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="72"/>
        <source>Left and Right arrow keys show the other copies of the group.</source>
        <translation>Mit den Pfeiltasten links und rechts sehen Sie die anderen Kopien der Gruppe.</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="130"/>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>PicturePreviewPane</name>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="104"/>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="105"/>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="106"/>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="107"/>
        <source>Similarity</source>
        <translation>Ähnlichkeit</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="112"/>
        <source>Remove this copy</source>
        <translation>Diese Kopie entfernen</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="182"/>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="193"/>
        <source>%1 file</source>
        <translation>%1-Datei</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="200"/>
        <source>Loading…</source>
        <translation>Wird geladen…</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="215"/>
        <source>This picture cannot be shown.</source>
        <translation>Dieses Bild kann nicht angezeigt werden.</translation>
    </message>
</context>
<context>
    <name>ProblemListDialog</name>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="17"/>
        <source>Not Scanned</source>
        <translation>Nicht gescannt</translation>
    </message>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="20"/>
        <source>These items were left out of the scan. Duplicates among them were not looked for.</source>
        <translation>Diese Elemente wurden beim Scan ausgelassen. Unter ihnen wurde nicht nach Duplikaten gesucht.</translation>
    </message>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="35"/>
        <source>Copy List</source>
        <translation>Liste kopieren</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="57"/>
        <source>... and %n more</source>
        <translation>
            <numerusform>... und %n weiteres</numerusform>
            <numerusform>... und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemovalSummaryDialog</name>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="22"/>
        <source>Removal finished</source>
        <translation>Entfernen abgeschlossen</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="30"/>
        <source>Item</source>
        <translation>Element</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="30"/>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="45"/>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="46"/>
        <source>Moved to %1</source>
        <translation>Verschoben nach %1</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="47"/>
        <source>In the trash: %1</source>
        <translation>Im Papierkorb: %1</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="52"/>
        <source>Kept: %1</source>
        <translation>Behalten: %1</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="53"/>
        <source>Failed: %1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="67"/>
        <source>Space freed: %1</source>
        <translation>Freigegebener Speicherplatz: %1</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="86"/>
        <source>%n item(s) removed.</source>
        <translation>
            <numerusform>%n Element entfernt.</numerusform>
            <numerusform>%n Elemente entfernt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="89"/>
        <source>%n item(s) stayed in place; the reasons are listed below.</source>
        <translation>
            <numerusform>%n Element wurde nicht entfernt; die Gründe sind unten aufgeführt.</numerusform>
            <numerusform>%n Elemente wurden nicht entfernt; die Gründe sind unten aufgeführt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResultForm</name>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="52"/>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="62"/>
        <source>Scan Results</source>
        <translation>Scanergebnisse</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="82"/>
        <source>Search by name</source>
        <translation>Nach Name suchen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="98"/>
        <source>Sort by</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="106"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="111"/>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="116"/>
        <source>Copies</source>
        <translation>Kopien</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="121"/>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="126"/>
        <source>Selected</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="153"/>
        <source>Loading results...</source>
        <translation>Ergebnisse werden geladen...</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="225"/>
        <location filename="../../src/results/ResultForm.cpp" line="540"/>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="238"/>
        <location filename="../../src/results/ResultForm.ui" line="716"/>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="251"/>
        <location filename="../../src/results/ResultForm.ui" line="759"/>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="264"/>
        <location filename="../../src/results/ResultForm.ui" line="802"/>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="277"/>
        <location filename="../../src/results/ResultForm.ui" line="845"/>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="290"/>
        <location filename="../../src/results/ResultForm.ui" line="888"/>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="303"/>
        <source>Packages</source>
        <translation>Pakete</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="316"/>
        <location filename="../../src/results/ResultForm.ui" line="931"/>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="469"/>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="479"/>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="489"/>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="502"/>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="515"/>
        <source>Flow</source>
        <translation>Mosaik</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="546"/>
        <source>Thumbnail size</source>
        <translation>Miniaturgröße</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="661"/>
        <source>Duplicates by type</source>
        <translation>Duplikate nach Typ</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="972"/>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1013"/>
        <source>Can be freed</source>
        <translation>Freigebbar</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1102"/>
        <source>Selected:</source>
        <translation>Ausgewählt:</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1123"/>
        <source>Remove Selected</source>
        <translation>Ausgewählte entfernen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="80"/>
        <source>If it keeps happening, write to &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</source>
        <translation>Wenn das Problem weiterhin auftritt, schreiben Sie an &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="83"/>
        <source>If it keeps happening, please send us the log files from &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</source>
        <translation>Wenn das Problem weiterhin auftritt, senden Sie uns bitte die Protokolldateien aus &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="254"/>
        <source>Select by Filename</source>
        <translation>Nach Dateiname auswählen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="255"/>
        <source>Select by Priority</source>
        <translation>Nach Priorität auswählen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="256"/>
        <source>Select Newest</source>
        <translation>Neueste auswählen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="257"/>
        <source>Select Oldest</source>
        <translation>Älteste auswählen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="258"/>
        <source>Select high-quality</source>
        <translation>Hohe Qualität auswählen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="259"/>
        <source>Select low-quality</source>
        <translation>Niedrige Qualität auswählen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="260"/>
        <source>Select high-resolution</source>
        <translation>Hohe Auflösung auswählen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="261"/>
        <source>Select low-resolution</source>
        <translation>Niedrige Auflösung auswählen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="262"/>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="263"/>
        <source>Deselect</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="280"/>
        <source>Show Only Duplicate Files</source>
        <translation>Nur doppelte Dateien anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="281"/>
        <source>Show Only Selected Files</source>
        <translation>Nur ausgewählte Dateien anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="282"/>
        <source>Show All Files</source>
        <translation>Alle Dateien anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="302"/>
        <source>Similarity</source>
        <translation>Ähnlichkeit</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="336"/>
        <location filename="../../src/results/ResultForm.cpp" line="1532"/>
        <source>Move to Recycle Bin</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="337"/>
        <location filename="../../src/results/ResultForm.cpp" line="1533"/>
        <source>Remove permanently</source>
        <translation>Endgültig löschen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="338"/>
        <location filename="../../src/results/ResultForm.cpp" line="1534"/>
        <source>Move to Folder</source>
        <translation>In Ordner verschieben</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="373"/>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="423"/>
        <source>Loading Data</source>
        <translation>Daten werden geladen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="423"/>
        <source>Data is still loading, please wait...</source>
        <translation>Die Daten werden noch geladen, bitte warten...</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="556"/>
        <source>%n group(s)</source>
        <translation>
            <numerusform>%n Gruppe</numerusform>
            <numerusform>%n Gruppen</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="558"/>
        <source>loading…</source>
        <translation>wird geladen…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="761"/>
        <source>%1% similar</source>
        <translation>%1&#xa0;% ähnlich</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="774"/>
        <source>%1 · %n copies · %2</source>
        <translation>
            <numerusform>%1 · %n Kopie · %2</numerusform>
            <numerusform>%1 · %n Kopien · %2</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="888"/>
        <source>Ignore Group</source>
        <translation>Gruppe ignorieren</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="890"/>
        <source>Remove Selected Files of This Group</source>
        <translation>Ausgewählte Dateien dieser Gruppe entfernen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="906"/>
        <location filename="../../src/results/ResultForm.cpp" line="967"/>
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="907"/>
        <source>Hide from Results</source>
        <translation>Aus den Ergebnissen ausblenden</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="909"/>
        <source>Remove This File</source>
        <translation>Diese Datei entfernen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="958"/>
        <source>Open Link Failed</source>
        <translation>Link konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="958"/>
        <source>Failed to get the web link for the file.</source>
        <translation>Der Weblink der Datei konnte nicht abgerufen werden.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="967"/>
        <location filename="../../src/results/ResultForm.cpp" line="1349"/>
        <source>The file was not found.</source>
        <translation>Die Datei wurde nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1019"/>
        <location filename="../../src/results/ResultForm.cpp" line="1202"/>
        <source>Delete Failed</source>
        <translation>Löschen fehlgeschlagen</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1020"/>
        <source>Failed to delete the file: %1</source>
        <translation>Die Datei konnte nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1084"/>
        <source>No selected</source>
        <translation>Keine Auswahl</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1084"/>
        <source>The current group has no selected files.</source>
        <translation>In der aktuellen Gruppe sind keine Dateien ausgewählt.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1123"/>
        <source>Selected files will be moved into the Cloud Drive&apos;s Recycle Bin, and they may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>Die ausgewählten Dateien werden in den Papierkorb des Cloud-Speichers verschoben; zu große Dateien werden dabei möglicherweise endgültig gelöscht. Möchten Sie sie wirklich löschen?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1127"/>
        <source>The selected files will be permanently deleted, are you sure to delete?</source>
        <translation>Die ausgewählten Dateien werden endgültig gelöscht. Möchten Sie sie wirklich löschen?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1129"/>
        <source>Selected files will be moved into the Recycle Bin, and it may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>Die ausgewählten Dateien werden in den Papierkorb verschoben; zu große Dateien werden dabei möglicherweise endgültig gelöscht. Möchten Sie sie wirklich löschen?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1172"/>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1172"/>
        <source>No Selected Files!</source>
        <translation>Keine Dateien ausgewählt!</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1181"/>
        <source>In some groups every copy is selected, so nothing of them would be kept.

Remove every copy of those files too? With &quot;No&quot; one copy of each stays.</source>
        <translation>In einigen Gruppen sind alle Kopien ausgewählt, sodass von ihnen nichts erhalten bliebe.

Auch alle Kopien dieser Dateien entfernen? Mit „Nein“ bleibt von jeder Datei eine Kopie erhalten.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1203"/>
        <source>Nothing was removed: the removal record %1 cannot be written (%2).</source>
        <translation>Es wurde nichts entfernt: Das Löschprotokoll %1 kann nicht geschrieben werden (%2).</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1216"/>
        <source>Removing files</source>
        <translation>Dateien werden entfernt</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1218"/>
        <source>Removing the selected files…</source>
        <translation>Die ausgewählten Dateien werden entfernt…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1293"/>
        <source>the removal record cannot be written: %1</source>
        <translation>das Löschprotokoll kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1352"/>
        <source>The item is not a file.</source>
        <translation>Das Element ist keine Datei.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1354"/>
        <source>The item is not a directory.</source>
        <translation>Das Element ist kein Ordner.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1356"/>
        <source>Failed to move the file.</source>
        <translation>Die Datei konnte nicht verschoben werden.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1362"/>
        <source>Permission denied. Please check the file&apos;s access rights.</source>
        <translation>Zugriff verweigert. Bitte prüfen Sie die Zugriffsrechte der Datei.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1364"/>
        <source>The file is currently in use and cannot be deleted.</source>
        <translation>Die Datei wird gerade verwendet und kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1366"/>
        <source>Failed to move the file to the recycle bin.</source>
        <translation>Die Datei konnte nicht in den Papierkorb verschoben werden.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1369"/>
        <source>An unknown error occurred while deleting the file.</source>
        <translation>Beim Löschen der Datei ist ein unbekannter Fehler aufgetreten.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1460"/>
        <source>Incomplete scan</source>
        <translation>Unvollständiger Scan</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1461"/>
        <source>This scan could not complete the image matching process due to &lt;br&gt;memory and disk space limitations. Please delete duplicate files&lt;br&gt;or select fewer folders and try again. Ensure at least 1GB of &lt;br&gt;memory and 1GB of free space on the system drive is available. &lt;br&gt;</source>
        <translation>Dieser Scan konnte den Bildabgleich nicht abschließen, weil Arbeitsspeicher &lt;br&gt;und Speicherplatz nicht ausreichten. Löschen Sie doppelte Dateien&lt;br&gt;oder wählen Sie weniger Ordner aus und versuchen Sie es erneut. Sorgen Sie für mindestens &lt;br&gt;1 GB freien Arbeitsspeicher und 1 GB freien Speicherplatz auf dem Systemlaufwerk. &lt;br&gt;</translation>
    </message>
</context>
<context>
    <name>TImageItemDelegate</name>
    <message>
        <location filename="../../src/results/TImageItemDelegate.cpp" line="204"/>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>TImageModel</name>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="83"/>
        <source>%n copies</source>
        <translation>
            <numerusform>%n Kopie</numerusform>
            <numerusform>%n Kopien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="85"/>
        <source>%n selected</source>
        <translation>
            <numerusform>%n ausgewählt</numerusform>
            <numerusform>%n ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="166"/>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="166"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="168"/>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="170"/>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
</context>
<context>
    <name>TOpenSaveThread</name>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="223"/>
        <source>The project file could not be opened.</source>
        <translation>Die Projektdatei konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="225"/>
        <source>The project file is damaged or incomplete.</source>
        <translation>Die Projektdatei ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="227"/>
        <source>This file is not a project file of this program.</source>
        <translation>Diese Datei ist keine Projektdatei dieses Programms.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="229"/>
        <source>The project file contains invalid data and was not opened.</source>
        <translation>Die Projektdatei enthält ungültige Daten und wurde nicht geöffnet.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="231"/>
        <source>None of the duplicate groups in this project exist any more.</source>
        <translation>Keine der Duplikatgruppen dieses Projekts ist noch vorhanden.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="233"/>
        <source>The project file could not be saved.</source>
        <translation>Die Projektdatei konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="235"/>
        <source>The operation was cancelled.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="237"/>
        <source>Unknown error.</source>
        <translation>Unbekannter Fehler.</translation>
    </message>
</context>
<context>
    <name>TPieChart</name>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="194"/>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="196"/>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="198"/>
        <source>Musics</source>
        <translation>Musik</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="200"/>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="202"/>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="204"/>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
</context>
</TS>
