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
        <location filename="../../src/mainwindow/MainWindow.cpp" line="293"/>
        <source>Files scanned</source>
        <translation>Gescannte Dateien</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="294"/>
        <source>Duplicates found</source>
        <translation>Gefundene Duplikate</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="295"/>
        <source>Size of duplicates</source>
        <translation>Größe der Duplikate</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="296"/>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="297"/>
        <source>Elapsed time</source>
        <translation>Verstrichene Zeit</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="335"/>
        <source>Local Computer</source>
        <translation>Lokaler Computer</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="358"/>
        <source>User Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="359"/>
        <source>Product FAQ</source>
        <translation>Häufige Fragen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="360"/>
        <source>Feedback and Support</source>
        <translation>Feedback und Support</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="361"/>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="362"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="903"/>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="363"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="921"/>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="375"/>
        <source>Show Log in Explorer</source>
        <translation>Protokoll im Explorer anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="377"/>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="378"/>
        <source>Save Project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="379"/>
        <source>Show Results</source>
        <translation>Ergebnisse anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="418"/>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="431"/>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="439"/>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="445"/>
        <source>New Scan</source>
        <translation>Neuer Scan</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="450"/>
        <source>Show results</source>
        <translation>Ergebnisse anzeigen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="498"/>
        <source>folders added</source>
        <translation>Ordner hinzugefügt</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="527"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="544"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="598"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="836"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="867"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="970"/>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="528"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="599"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>Nachdem Cloud-Konten und -Ordner hinzugefügt wurden, können keine lokalen Ordner mehr hinzugefügt werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="532"/>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="545"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>Nachdem lokale Ordner hinzugefügt wurden, können keine Cloud-Konten mehr hinzugefügt werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="794"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="858"/>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="807"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="842"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="875"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="982"/>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="836"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>Die Ergebnisse eines Cloud-Scans können nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="868"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="971"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>Die aktuellen Scanergebnisse wurden nicht gespeichert. Möchten Sie die Datei speichern?</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="904"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;Version %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="922"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>Die neue Sprache wird beim nächsten Start des Programms wirksam.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="956"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>Unerwartetes Beenden während des letzten Löschvorgangs erkannt</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="957"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>Das Programm wurde während des letzten Stapel-Löschvorgangs unerwartet beendet,&lt;br&gt;möglicherweise durch Störungen einer Antivirensoftware.&lt;br&gt;&lt;br&gt;Deaktivieren Sie Ihr Antivirenprogramm vorübergehend oder fügen Sie diese Anwendung&lt;br&gt;zu seiner Ausnahmeliste hinzu, um Löschfehler oder Abstürze zu vermeiden.</translation>
    </message>
</context>
<context>
    <name>TOpenSaveThread</name>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="144"/>
        <source>The project file could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="146"/>
        <source>The project file is damaged or incomplete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="148"/>
        <source>This file is not a project file of this program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="150"/>
        <source>The project file contains invalid data and was not opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="152"/>
        <source>None of the duplicate groups in this project exist any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="154"/>
        <source>The project file could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="156"/>
        <source>The operation was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="158"/>
        <source>Unknown error.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
