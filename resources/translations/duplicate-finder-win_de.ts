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
    <name>GroupListPage</name>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="35"/>
        <source>%1 copies, %2</source>
        <translation>%1 Kopien, %2</translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="58"/>
        <source>Scan results</source>
        <translation>Scanergebnisse</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupListPage.cpp" line="66"/>
        <source>%n group(s) of duplicates, %1 in all</source>
        <translation>
            <numerusform>%n Duplikatgruppe, insgesamt %1</numerusform>
            <numerusform>%n Duplikatgruppen, insgesamt %1</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="75"/>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="327"/>
        <source>Files scanned</source>
        <translation>Gescannte Dateien</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="328"/>
        <source>Duplicates found</source>
        <translation>Gefundene Duplikate</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="329"/>
        <source>Size of duplicates</source>
        <translation>Größe der Duplikate</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="330"/>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="331"/>
        <source>Elapsed time</source>
        <translation>Verstrichene Zeit</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="378"/>
        <source>Local Computer</source>
        <translation>Lokaler Computer</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="401"/>
        <source>User Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="402"/>
        <source>Product FAQ</source>
        <translation>Häufige Fragen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="403"/>
        <source>Feedback and Support</source>
        <translation>Feedback und Support</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="404"/>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="405"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1130"/>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="406"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1148"/>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="418"/>
        <source>Show Log in Explorer</source>
        <translation>Protokoll im Explorer anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="420"/>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="421"/>
        <source>Save Project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="422"/>
        <source>Show Results</source>
        <translation>Ergebnisse anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="461"/>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="474"/>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="482"/>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="488"/>
        <source>New Scan</source>
        <translation>Neuer Scan</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="493"/>
        <source>Show results</source>
        <translation>Ergebnisse anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="550"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation>„%1“ ist eine Datei, kein Ordner. Nur Ordner können gescannt werden: Fügen Sie stattdessen den Ordner hinzu, in dem sie liegt.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="554"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation>„%1“ wurde nicht gefunden. Es wurde möglicherweise verschoben oder entfernt.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="557"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>%n Element wurde nicht hinzugefügt, weil es kein Ordner ist:</numerusform>
            <numerusform>%n Elemente wurden nicht hinzugefügt, weil sie keine Ordner sind:</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="559"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="609"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="626"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="692"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1070"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1097"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1197"/>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="580"/>
        <source>%n folder(s) added</source>
        <translation>
            <numerusform>%n Ordner hinzugefügt</numerusform>
            <numerusform>%n Ordner hinzugefügt</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="610"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="693"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>Nachdem Cloud-Konten und -Ordner hinzugefügt wurden, können keine lokalen Ordner mehr hinzugefügt werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="614"/>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="627"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>Nachdem lokale Ordner hinzugefügt wurden, können keine Cloud-Konten mehr hinzugefügt werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="824"/>
        <source>%1 and %2 could not be read.</source>
        <translation>%1 und %2 konnten nicht gelesen werden.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="825"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n Ordner</numerusform>
            <numerusform>%n Ordner</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="825"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="827"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>%n Ordner konnte nicht gelesen werden.</numerusform>
            <numerusform>%n Ordner konnten nicht gelesen werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="829"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>%n Datei konnte nicht gelesen werden.</numerusform>
            <numerusform>%n Dateien konnten nicht gelesen werden.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="850"/>
        <source>Folders that could not be read</source>
        <translation>Ordner, die nicht gelesen werden konnten</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="851"/>
        <source>Files that could not be read</source>
        <translation>Dateien, die nicht gelesen werden konnten</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="852"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation>Nicht verfolgte Verknüpfungen, weil sie aus den gewählten Ordnern herausführen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="854"/>
        <source>System folders not entered</source>
        <translation>Nicht betretene Systemordner</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="862"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>%n Verknüpfung aus den gewählten Ordnern heraus wurde nicht verfolgt.</numerusform>
            <numerusform>%n Verknüpfungen aus den gewählten Ordnern heraus wurden nicht verfolgt.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="869"/>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="878"/>
        <source>The chosen folder could not be read.</source>
        <translation>Der gewählte Ordner konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="879"/>
        <source>The chosen folders could not be read.</source>
        <translation>Die gewählten Ordner konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="881"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation>Prüfen Sie, ob er noch vorhanden ist und ob Sie ihn öffnen dürfen.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="882"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation>Prüfen Sie, ob sie noch vorhanden sind und ob Sie sie öffnen dürfen.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="901"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1004"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1057"/>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="902"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation>„%1“ ist ein Ordner, keine Projektdatei. Um ihn zu scannen, fügen Sie ihn mit der Schaltfläche + hinzu.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="905"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation>Die Projektdatei „%1“ existiert nicht.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1017"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1056"/>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1070"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>Die Ergebnisse eines Cloud-Scans können nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1098"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1198"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>Die aktuellen Scanergebnisse wurden nicht gespeichert. Möchten Sie die Datei speichern?</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1131"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;Version %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1149"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>Die neue Sprache wird beim nächsten Start des Programms wirksam.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1183"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>Unerwartetes Beenden während des letzten Löschvorgangs erkannt</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1186"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Vor dem Abbruch bearbeitete Elemente: %1 von %2.&lt;br&gt;Das Löschprotokoll führt jedes einzelne auf und wohin es ging:&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1184"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>Das Programm wurde während des letzten Stapel-Löschvorgangs unerwartet beendet,&lt;br&gt;möglicherweise durch Störungen einer Antivirensoftware.&lt;br&gt;&lt;br&gt;Deaktivieren Sie Ihr Antivirenprogramm vorübergehend oder fügen Sie diese Anwendung&lt;br&gt;zu seiner Ausnahmeliste hinzu, um Löschfehler oder Abstürze zu vermeiden.</translation>
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
    <name>TOpenSaveThread</name>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="144"/>
        <source>The project file could not be opened.</source>
        <translation>Die Projektdatei konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="146"/>
        <source>The project file is damaged or incomplete.</source>
        <translation>Die Projektdatei ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="148"/>
        <source>This file is not a project file of this program.</source>
        <translation>Diese Datei ist keine Projektdatei dieses Programms.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="150"/>
        <source>The project file contains invalid data and was not opened.</source>
        <translation>Die Projektdatei enthält ungültige Daten und wurde nicht geöffnet.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="152"/>
        <source>None of the duplicate groups in this project exist any more.</source>
        <translation>Keine der Duplikatgruppen dieses Projekts ist noch vorhanden.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="154"/>
        <source>The project file could not be saved.</source>
        <translation>Die Projektdatei konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="156"/>
        <source>The operation was cancelled.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="158"/>
        <source>Unknown error.</source>
        <translation>Unbekannter Fehler.</translation>
    </message>
</context>
</TS>
