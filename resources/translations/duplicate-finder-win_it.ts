<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>CustomProgressDialog</name>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="34"/>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="91"/>
        <source>Cancelling...</source>
        <translation>Annullamento...</translation>
    </message>
</context>
<context>
    <name>GroupListPage</name>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="35"/>
        <source>%1 copies, %2</source>
        <translation>%1 copie, %2</translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="58"/>
        <source>Scan results</source>
        <translation>Risultati della scansione</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupListPage.cpp" line="66"/>
        <source>%n group(s) of duplicates, %1 in all</source>
        <translation>
            <numerusform>%n gruppo di duplicati, %1 in totale</numerusform>
            <numerusform>%n gruppi di duplicati, %1 in totale</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="75"/>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="293"/>
        <source>Files scanned</source>
        <translation>File analizzati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="294"/>
        <source>Duplicates found</source>
        <translation>Duplicati trovati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="295"/>
        <source>Size of duplicates</source>
        <translation>Dimensione dei duplicati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="296"/>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="297"/>
        <source>Elapsed time</source>
        <translation>Tempo trascorso</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="335"/>
        <source>Local Computer</source>
        <translation>Computer locale</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="358"/>
        <source>User Guide</source>
        <translation>Guida utente</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="359"/>
        <source>Product FAQ</source>
        <translation>Domande frequenti</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="360"/>
        <source>Feedback and Support</source>
        <translation>Feedback e supporto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="361"/>
        <source>Check for Updates</source>
        <translation>Verifica aggiornamenti</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="362"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="903"/>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="363"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="921"/>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="375"/>
        <source>Show Log in Explorer</source>
        <translation>Mostra log in Esplora risorse</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="377"/>
        <source>Open Project</source>
        <translation>Apri progetto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="378"/>
        <source>Save Project</source>
        <translation>Salva progetto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="379"/>
        <source>Show Results</source>
        <translation>Mostra risultati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="418"/>
        <source>Scan</source>
        <translation>Scansiona</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="431"/>
        <source>Stop</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="439"/>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="445"/>
        <source>New Scan</source>
        <translation>Nuova scansione</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="450"/>
        <source>Show results</source>
        <translation>Mostra risultati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="498"/>
        <source>folders added</source>
        <translation>cartelle aggiunte</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="527"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="544"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="598"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="836"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="867"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="970"/>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="528"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="599"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>Dopo aver aggiunto account e cartelle cloud, non è più possibile aggiungere cartelle locali.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="532"/>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="545"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>Dopo aver aggiunto cartelle locali, non è più possibile aggiungere account cloud.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="794"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="858"/>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="807"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="842"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="875"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="982"/>
        <source>Save File</source>
        <translation>Salva file</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="836"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>I risultati della scansione cloud non possono essere salvati.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="868"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="971"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>I risultati della scansione corrente non sono stati salvati. Salvare il file?</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="904"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;Versione %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="922"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>La nuova lingua sarà applicata al prossimo avvio del programma.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="956"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>Rilevata chiusura anomala durante l&apos;ultima eliminazione</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="957"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>Il programma si è chiuso in modo imprevisto durante l&apos;ultima eliminazione in blocco,&lt;br&gt;forse a causa di un software antivirus.&lt;br&gt;&lt;br&gt;Disattivare temporaneamente l&apos;antivirus o aggiungere questa applicazione&lt;br&gt;al suo elenco di esclusioni per evitare errori di eliminazione o arresti anomali.</translation>
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
