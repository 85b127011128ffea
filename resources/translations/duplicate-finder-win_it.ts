<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>CsvExportRun</name>
    <message>
        <source>Export Failed</source>
        <translation>Esportazione non riuscita</translation>
    </message>
    <message>
        <source>The table could not be written to %1:
%2</source>
        <translation>Impossibile scrivere la tabella in %1:
%2</translation>
    </message>
    <message>
        <source>Export as CSV</source>
        <translation>Esporta come CSV</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>Tabelle CSV (*.csv)</translation>
    </message>
</context>
<context>
    <name>MoveTargetDialog</name>
    <message>
        <source>Move to Folder</source>
        <translation>Sposta nella cartella</translation>
    </message>
    <message>
        <source>Move the selected items into this folder:</source>
        <translation>Sposta gli elementi selezionati in questa cartella:</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Scegli una cartella</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Sfoglia…</translation>
    </message>
    <message>
        <source>Keep the folder structure</source>
        <translation>Mantieni la struttura delle cartelle</translation>
    </message>
    <message>
        <source>Each item goes into the same sub-folders below the target as below the scanned folder that holds it, so that moved files keep their context. Without it, every item lands in the target itself.</source>
        <translation>Ogni elemento va nelle stesse sottocartelle sotto la destinazione in cui si trovava sotto la cartella analizzata, così i file spostati mantengono il loro contesto. Altrimenti ogni elemento finisce direttamente nella destinazione.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Sposta</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
</context>
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
    <name>DFGeneralWidget</name>
    <message>
        <source>The robust comparison checks every uncertain pair by its key points itself.</source>
        <translation>Il confronto robusto verifica da sé ogni coppia incerta tramite i suoi punti caratteristici.</translation>
    </message>
    <message>
        <source>Lowest similarity</source>
        <translation>Somiglianza minima</translation>
    </message>
    <message>
        <source>The robust comparison shows a match only when the pictures are at least this similar.</source>
        <translation>Il confronto robusto mostra una corrispondenza solo se le immagini sono simili almeno quanto questo valore.</translation>
    </message>
</context>
<context>
    <name>DFIgnoreListWidget</name>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="191"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="199"/>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="192"/>
        <source>The maximum file size cannot be less than the minimum file size.</source>
        <translation>La dimensione massima del file non può essere inferiore a quella minima.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="200"/>
        <source>Please select the folder where the deleted files will be moved to.</source>
        <translation>Seleziona la cartella in cui spostare i file eliminati.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="254"/>
        <source>Select folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="264"/>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="272"/>
        <source>All Files (*.*)</source>
        <translation>Tutti i file (*.*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="275"/>
        <source>All Files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="278"/>
        <source>Select Files</source>
        <translation>Seleziona file</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="98"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="112"/>
        <source>Clear cache</source>
        <translation>Svuota cache</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="99"/>
        <source>The cache is in use by a running scan. Try again when it has ended.</source>
        <translation>La cache è in uso da una scansione in corso. Riprova quando sarà terminata.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="111"/>
        <source>Content keys kept from earlier scans: %1</source>
        <translation>Chiavi di contenuto conservate dalle scansioni precedenti: %1</translation>
    </message>
</context>
<context>
    <name>DFPreferencesDialog</name>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="14"/>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="39"/>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="44"/>
        <source>Duplicate files</source>
        <translation>File duplicati</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="49"/>
        <source>Similar images</source>
        <translation>Immagini simili</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="62"/>
        <source>Default</source>
        <translation>Predefinite</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="85"/>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="95"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="97"/>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="98"/>
        <source>You cannot change settings of preferences while the scan is in progress.</source>
        <translation>Non è possibile modificare le impostazioni durante la scansione.</translation>
    </message>
</context>
<context>
    <name>DFSelectionWidget</name>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <source>The folder has been added.</source>
        <translation>La cartella è già stata aggiunta.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="179"/>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <source>%1 is not a number.</source>
        <translation>%1 non è un numero.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>%1 is added.</source>
        <translation>%1 è già assegnato.</translation>
    </message>
</context>
<context>
    <name>Genernal</name>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="20"/>
        <source>Enable similar images function</source>
        <translation>Attiva la ricerca di immagini simili</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="27"/>
        <source>Similarity Comparison Algorithms</source>
        <translation>Algoritmi di confronto della somiglianza</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="36"/>
        <source>Smart Selection</source>
        <translation>Selezione intelligente</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="43"/>
        <source>Histogram Data Comparison (Quality First)</source>
        <translation>Confronto degli istogrammi (priorità alla qualità)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="50"/>
        <source>pHash Data Comparison (Speed First)</source>
        <translation>Confronto pHash (priorità alla velocità)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="69"/>
        <source>Histogram similarity</source>
        <translation>Somiglianza dell&apos;istogramma</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="102"/>
        <source>The basic algorithm detects similar images quickly but vaguely, the larger the value, the higher the similarty.</source>
        <translation>L&apos;algoritmo di base rileva le immagini simili rapidamente ma in modo approssimativo. Più alto è il valore, maggiore è la somiglianza richiesta.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="112"/>
        <source>Features similarity</source>
        <translation>Somiglianza delle caratteristiche</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="139"/>
        <source>The advanced algorithm detects similar images through feature points in the image. Using this algorithm, detecting simialr images takes more time, but the result will be more accurate. The larger the value, the higher the similarity.</source>
        <translation>L&apos;algoritmo avanzato rileva le immagini simili tramite i punti caratteristici dell&apos;immagine. La ricerca richiede più tempo, ma il risultato è più preciso. Più alto è il valore, maggiore è la somiglianza richiesta.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="152"/>
        <source>No comparision between different types of images</source>
        <translation>Non confrontare immagini di tipo diverso</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="161"/>
        <source>Compare images with similar size and aspect ratio (within ratio)</source>
        <translation>Confronta solo immagini di dimensioni e proporzioni simili (entro il fattore)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="196"/>
        <source>Select similar images for removal following preset rules below </source>
        <translation>Seleziona le immagini simili da rimuovere secondo le regole seguenti</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="211"/>
        <source>Follow the duplicates removal rule</source>
        <translation>Segui la regola dei duplicati</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="218"/>
        <source>Select high-resolution similar images for removal</source>
        <translation>Seleziona le immagini ad alta risoluzione</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="225"/>
        <source>Select low-resolution similar images for removal</source>
        <translation>Seleziona le immagini a bassa risoluzione</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="232"/>
        <source>Select high-quality similar images for removal</source>
        <translation>Seleziona le immagini di alta qualità</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="239"/>
        <source>Select low-quality similar images for removal</source>
        <translation>Seleziona le immagini di bassa qualità</translation>
    </message>
    <message>
        <source>Robust Comparison (Edited Copies)</source>
        <translation>Confronto robusto (copie modificate)</translation>
    </message>
    <message>
        <source>Also finds cropped, rotated, mirrored, grey and re-saved copies in any picture format.</source>
        <translation>Trova anche copie ritagliate, ruotate, specchiate, in scala di grigi e salvate di nuovo, in qualsiasi formato di immagine.</translation>
    </message>
</context>
<context>
    <name>IgnoreList</name>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="25"/>
        <source>Remove method</source>
        <translation>Metodo di rimozione</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="31"/>
        <source>Move to Recycle Bin</source>
        <translation>Sposta nel cestino</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="38"/>
        <source>Remove permanently</source>
        <translation>Elimina definitivamente</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="45"/>
        <source>Move to Folder</source>
        <translation>Sposta in una cartella</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="67"/>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="79"/>
        <source>Select minimum and maximum file size</source>
        <translation>Dimensione minima e massima dei file</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="88"/>
        <source>Minimum file size </source>
        <translation>Dimensione minima</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="111"/>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="118"/>
        <source>Maximum file size</source>
        <translation>Dimensione massima</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="141"/>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="166"/>
        <source>Ignore folders and files in the list</source>
        <translation>Ignora le cartelle e i file dell&apos;elenco</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="187"/>
        <source>Add folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="194"/>
        <source>Add files</source>
        <translation>Aggiungi file</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="201"/>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="208"/>
        <source>Clear</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="233"/>
        <source>Support or Ignore</source>
        <translation>Includi o ignora</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="239"/>
        <source>Separate extensions with comma, such as txt, avi, dll</source>
        <translation>Separa le estensioni con virgole, ad esempio txt, avi, dll</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="249"/>
        <source>Scan only file formats:</source>
        <translation>Analizza solo questi formati:</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="259"/>
        <source>Ignore scanning file formats:</source>
        <translation>Ignora questi formati:</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="272"/>
        <source>Ignore system hidden folders and files</source>
        <translation>Ignora cartelle e file nascosti o di sistema</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by hard link</source>
        <translation>Sostituisci con collegamento fisico</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by reflink (copy-on-write clone)</source>
        <translation>Sostituisci con reflink (clone copy-on-write)</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by symbolic link</source>
        <translation>Sostituisci con collegamento simbolico</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Looking for files…</source>
        <translation>Ricerca dei file…</translation>
    </message>
    <message>
        <source>Comparing files of the same size…</source>
        <translation>Confronto dei file della stessa dimensione…</translation>
    </message>
    <message>
        <source>Reading pictures…</source>
        <translation>Lettura delle immagini…</translation>
    </message>
    <message>
        <source>Reading pictures %1</source>
        <translation>Lettura delle immagini %1</translation>
    </message>
    <message>
        <source>Comparing pictures %1</source>
        <translation>Confronto delle immagini %1</translation>
    </message>
    <message>
        <source>Checking picture details %1</source>
        <translation>Verifica dei dettagli delle immagini %1</translation>
    </message>
    <message>
        <source>Scan stopped – results are incomplete</source>
        <translation>Scansione interrotta – i risultati sono incompleti</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Scansione completata</translation>
    </message>
    <message>
        <source>The scan was stopped before any files were compared.</source>
        <translation>La scansione è stata interrotta prima di confrontare qualsiasi file.</translation>
    </message>
    <message>
        <source>No duplicates were found among the files compared before the stop.</source>
        <translation>Nessun duplicato tra i file confrontati prima dell&apos;interruzione.</translation>
    </message>
    <message>
        <source>Only these file types are scanned: %1</source>
        <translation>Vengono analizzati solo questi tipi di file: %1</translation>
    </message>
    <message>
        <source>These file types are skipped: %1</source>
        <translation>Questi tipi di file vengono ignorati: %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="343"/>
        <source>Files scanned</source>
        <translation>File analizzati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="344"/>
        <source>Duplicates found</source>
        <translation>Duplicati trovati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="345"/>
        <source>Size of duplicates</source>
        <translation>Dimensione dei duplicati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="346"/>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="347"/>
        <source>Elapsed time</source>
        <translation>Tempo trascorso</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="395"/>
        <source>Local Computer</source>
        <translation>Computer locale</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="415"/>
        <source>%1 (needs rclone)</source>
        <translation>%1 (richiede rclone)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>User Guide</source>
        <translation>Guida utente</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="428"/>
        <source>Product FAQ</source>
        <translation>Domande frequenti</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="429"/>
        <source>Feedback and Support</source>
        <translation>Feedback e supporto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="430"/>
        <source>Check for Updates</source>
        <translation>Verifica aggiornamenti</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="431"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1373"/>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="432"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1393"/>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="444"/>
        <source>Show Log in Explorer</source>
        <translation>Mostra log in Esplora risorse</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="447"/>
        <source>Open Project</source>
        <translation>Apri progetto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="448"/>
        <source>Save Project</source>
        <translation>Salva progetto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="449"/>
        <source>Show Results</source>
        <translation>Mostra risultati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="488"/>
        <source>Scan</source>
        <translation>Scansiona</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="501"/>
        <source>Stop</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="509"/>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="515"/>
        <source>New Scan</source>
        <translation>Nuova scansione</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="520"/>
        <source>Show results</source>
        <translation>Mostra risultati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="577"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation>&quot;%1&quot; è un file, non una cartella. Si possono analizzare solo cartelle: aggiungi invece la cartella che lo contiene.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="581"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation>Impossibile trovare &quot;%1&quot;. Potrebbe essere stato spostato o rimosso.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="584"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>%n elemento non è stato aggiunto perché non è una cartella:</numerusform>
            <numerusform>%n elementi non sono stati aggiunti perché non sono cartelle:</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="586"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="643"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="873"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1313"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1340"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1459"/>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="607"/>
        <source>%n folder(s) added</source>
        <translation>
            <numerusform>%n cartella aggiunta</numerusform>
            <numerusform>%n cartelle aggiunte</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="644"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="874"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>Dopo aver aggiunto account e cartelle cloud, non è più possibile aggiungere cartelle locali.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="648"/>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="663"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="670"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="731"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="739"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1182"/>
        <source>info</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="664"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="732"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>Dopo aver aggiunto cartelle locali, non è più possibile aggiungere account cloud.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="670"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="739"/>
        <source>Multiple cloud accounts cannot be scanned at the same time.</source>
        <translation>Non è possibile scansionare più account cloud contemporaneamente.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="697"/>
        <source>Sign in to %1</source>
        <translation>Accedi a %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="698"/>
        <source>Finish signing in to %1 in your web browser. This window goes on by itself once you are through.</source>
        <translation>Completa l&apos;accesso a %1 nel browser web. Questa finestra proseguirà da sola quando avrai finito.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="792"/>
        <source>Sign-in Failed</source>
        <translation>Accesso non riuscito</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="793"/>
        <source>The cloud account could not be signed in.

%1</source>
        <translation>Impossibile accedere all&apos;account cloud.

%1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="805"/>
        <source>Insufficient System Disk Space</source>
        <translation>Spazio insufficiente sull&apos;unità di sistema</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="806"/>
        <source>Thumbnail download was not completed. This may affect similar image detection results. Please free up some disk space and try again.</source>
        <translation>Il download delle miniature non è stato completato. Questo può influire sui risultati del rilevamento delle immagini simili. Libera spazio su disco e riprova.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="817"/>
        <source>If no browser window opened, open &lt;a href=&quot;%1&quot;&gt;this sign-in page&lt;/a&gt;.</source>
        <translation>Se non si è aperta alcuna finestra del browser, apri &lt;a href=&quot;%1&quot;&gt;questa pagina di accesso&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1046"/>
        <source>%1 and %2 could not be read.</source>
        <translation>Impossibile leggere %1 e %2.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1047"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n cartella</numerusform>
            <numerusform>%n cartelle</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1047"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n file</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1049"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>Impossibile leggere %n cartella.</numerusform>
            <numerusform>Impossibile leggere %n cartelle.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1051"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>Impossibile leggere %n file.</numerusform>
            <numerusform>Impossibile leggere %n file.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1072"/>
        <source>Folders that could not be read</source>
        <translation>Cartelle che non è stato possibile leggere</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1073"/>
        <source>Files that could not be read</source>
        <translation>File che non è stato possibile leggere</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1074"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation>Collegamenti non seguiti perché portano fuori dalle cartelle scelte</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1076"/>
        <source>System folders not entered</source>
        <translation>Cartelle di sistema non esplorate</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1084"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>%n collegamento che porta fuori dalle cartelle scelte non è stato seguito.</numerusform>
            <numerusform>%n collegamenti che portano fuori dalle cartelle scelte non sono stati seguiti.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1091"/>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1100"/>
        <source>The chosen folder could not be read.</source>
        <translation>Impossibile leggere la cartella scelta.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1101"/>
        <source>The chosen folders could not be read.</source>
        <translation>Impossibile leggere le cartelle scelte.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1103"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation>Verifica che esista ancora e di avere il permesso di aprirla.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1104"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation>Verifica che esistano ancora e di avere il permesso di aprirle.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1123"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1247"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1300"/>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1124"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation>&quot;%1&quot; è una cartella, non un file di progetto. Per analizzarla, aggiungila con il pulsante +.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1127"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation>Il file di progetto &quot;%1&quot; non esiste.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1178"/>
        <source>Cloud Scan Failed</source>
        <translation>Scansione cloud non riuscita</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1179"/>
        <source>The cloud scan could not be completed: %1</source>
        <translation>Impossibile completare la scansione cloud: %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1183"/>
        <source>Thumbnail download was not completed. This may affect similar image detection results. </source>
        <translation>Il download delle miniature non è stato completato. Questo può influire sui risultati del rilevamento delle immagini simili. </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1260"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1299"/>
        <source>Save File</source>
        <translation>Salva file</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1313"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>I risultati della scansione cloud non possono essere salvati.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1341"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1460"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>I risultati della scansione corrente non sono stati salvati. Salvare il file?</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1374"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;Versione %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1394"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>La nuova lingua sarà applicata al prossimo avvio del programma.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1449"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>Rilevata chiusura anomala durante l&apos;ultima eliminazione</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1444"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Elementi elaborati prima dell’interruzione: %1 di %2.&lt;br&gt;Il registro delle eliminazioni elenca ciascuno e dove è finito:&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1435"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>Il programma si è chiuso in modo imprevisto durante l&apos;ultima eliminazione in blocco,&lt;br&gt;forse a causa di un software antivirus.&lt;br&gt;&lt;br&gt;Disattivare temporaneamente l&apos;antivirus o aggiungere questa applicazione&lt;br&gt;al suo elenco di esclusioni per evitare errori di eliminazione o arresti anomali.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="445"/>
        <source>Open Data Folder</source>
        <translation>Apri cartella dati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="962"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="997"/>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
</context>
<context>
    <name>PicturePreviewDialog</name>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="22"/>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="34"/>
        <source>Chosen copy</source>
        <translation>Copia scelta</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="36"/>
        <source>Compared with</source>
        <translation>Confrontata con</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="42"/>
        <source>Previous copy (Left arrow)</source>
        <translation>Copia precedente (freccia sinistra)</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="50"/>
        <source>Next copy (Right arrow)</source>
        <translation>Copia successiva (freccia destra)</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="72"/>
        <source>Left and Right arrow keys show the other copies of the group.</source>
        <translation>I tasti freccia sinistra e destra mostrano le altre copie del gruppo.</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="130"/>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
</context>
<context>
    <name>PicturePreviewPane</name>
    <message>
        <source>Not verified</source>
        <translation>Non verificato</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="104"/>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="105"/>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="106"/>
        <source>Modified</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="107"/>
        <source>Similarity</source>
        <translation>Somiglianza</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="112"/>
        <source>Remove this copy</source>
        <translation>Rimuovi questa copia</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="182"/>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="193"/>
        <source>%1 file</source>
        <translation>File %1</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="200"/>
        <source>Loading…</source>
        <translation>Caricamento…</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="215"/>
        <source>This picture cannot be shown.</source>
        <translation>Impossibile visualizzare questa immagine.</translation>
    </message>
    <message>
        <source>Matched by</source>
        <translation>Corrispondenza</translation>
    </message>
</context>
<context>
    <name>ProblemListDialog</name>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="17"/>
        <source>Not Scanned</source>
        <translation>Non analizzato</translation>
    </message>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="20"/>
        <source>These items were left out of the scan. Duplicates among them were not looked for.</source>
        <translation>Questi elementi sono stati esclusi dall&apos;analisi. Tra di essi non sono stati cercati duplicati.</translation>
    </message>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="35"/>
        <source>Copy List</source>
        <translation>Copia elenco</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="57"/>
        <source>... and %n more</source>
        <translation>
            <numerusform>... e altri %n</numerusform>
            <numerusform>... e altri %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemovalSummaryDialog</name>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="22"/>
        <source>Removal finished</source>
        <translation>Rimozione completata</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Item</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="48"/>
        <source>Removed</source>
        <translation>Rimosso</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="50"/>
        <source>Moved</source>
        <translation>Spostato</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="51"/>
        <source>In the trash</source>
        <translation>Nel cestino</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="56"/>
        <source>Kept</source>
        <translation>Conservato</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="56"/>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="74"/>
        <source>Space freed: %1</source>
        <translation>Spazio liberato: %1</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="93"/>
        <source>%n item(s) removed.</source>
        <translation>
            <numerusform>%n elemento rimosso.</numerusform>
            <numerusform>%n elementi rimossi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="96"/>
        <source>%n item(s) stayed in place; the reasons are listed below.</source>
        <translation>
            <numerusform>%n elemento è rimasto al suo posto; i motivi sono elencati sotto.</numerusform>
            <numerusform>%n elementi sono rimasti al loro posto; i motivi sono elencati sotto.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Replaced by a link</source>
        <translation>Sostituito da collegamento</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Now reads %1</source>
        <translation>Ora legge %1</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Each file replaced by a hard link is now another name of the copy that stays: both names share one set of permissions and one owner.</source>
        <translation>Ogni file sostituito da un collegamento fisico è ora un altro nome della copia mantenuta: i due nomi condividono gli stessi permessi e lo stesso proprietario.</translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) replaced by a link.</source>
        <translation>
            <numerusform>%n elemento sostituito da un collegamento.</numerusform>
            <numerusform>%n elementi sostituiti da collegamenti.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResultForm</name>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>non verificato</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="52"/>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="62"/>
        <source>Scan Results</source>
        <translation>Risultati della scansione</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="82"/>
        <source>Search by name</source>
        <translation>Cerca per nome</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="98"/>
        <source>Sort by</source>
        <translation>Ordina per</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="106"/>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="111"/>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="116"/>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="121"/>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="126"/>
        <source>Selected</source>
        <translation>Selezione</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="153"/>
        <source>Loading results...</source>
        <translation>Caricamento dei risultati...</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="225"/>
        <location filename="../../src/results/ResultForm.cpp" line="619"/>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="238"/>
        <location filename="../../src/results/ResultForm.ui" line="716"/>
        <location filename="../../src/results/ResultForm.cpp" line="73"/>
        <source>Images</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="251"/>
        <location filename="../../src/results/ResultForm.ui" line="759"/>
        <location filename="../../src/results/ResultForm.cpp" line="75"/>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="264"/>
        <location filename="../../src/results/ResultForm.ui" line="802"/>
        <location filename="../../src/results/ResultForm.cpp" line="77"/>
        <source>Music</source>
        <translation>Musica</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="277"/>
        <location filename="../../src/results/ResultForm.ui" line="845"/>
        <location filename="../../src/results/ResultForm.cpp" line="79"/>
        <source>Videos</source>
        <translation>Video</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="290"/>
        <location filename="../../src/results/ResultForm.ui" line="888"/>
        <location filename="../../src/results/ResultForm.cpp" line="81"/>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="303"/>
        <location filename="../../src/results/ResultForm.cpp" line="83"/>
        <source>Packages</source>
        <translation>Pacchetti</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="316"/>
        <location filename="../../src/results/ResultForm.ui" line="931"/>
        <location filename="../../src/results/ResultForm.cpp" line="85"/>
        <source>Others</source>
        <translation>Altri</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="469"/>
        <source>Select</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="479"/>
        <source>Filter</source>
        <translation>Filtra</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="489"/>
        <source>List</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="502"/>
        <source>Grid</source>
        <translation>Griglia</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="515"/>
        <source>Flow</source>
        <translation>Mosaico</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="546"/>
        <source>Thumbnail size</source>
        <translation>Dimensione delle miniature</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="661"/>
        <source>Duplicates by type</source>
        <translation>Duplicati per tipo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="972"/>
        <source>Total</source>
        <translation>Totale</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1013"/>
        <source>Can be freed</source>
        <translation>Liberabile</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1102"/>
        <source>Selected:</source>
        <translation>Selezionati:</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1123"/>
        <source>Remove Selected</source>
        <translation>Rimuovi selezionati</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="125"/>
        <source>If it keeps happening, write to &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</source>
        <translation>Se il problema persiste, scrivi a &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="128"/>
        <source>If it keeps happening, please send us the log files from &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</source>
        <translation>Se il problema persiste, inviaci i file di log della cartella &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="332"/>
        <source>Select by Filename</source>
        <translation>Seleziona per nome file</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="333"/>
        <source>Select by Priority</source>
        <translation>Seleziona per priorità</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="334"/>
        <source>Select Newest</source>
        <translation>Seleziona i più recenti</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="335"/>
        <source>Select Oldest</source>
        <translation>Seleziona i più vecchi</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="336"/>
        <source>Select high-quality</source>
        <translation>Seleziona alta qualità</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="337"/>
        <source>Select low-quality</source>
        <translation>Seleziona bassa qualità</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="338"/>
        <source>Select high-resolution</source>
        <translation>Seleziona alta risoluzione</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="339"/>
        <source>Select low-resolution</source>
        <translation>Seleziona bassa risoluzione</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="340"/>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="341"/>
        <source>Deselect</source>
        <translation>Deseleziona</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="358"/>
        <source>Show Only Duplicate Files</source>
        <translation>Mostra solo file duplicati</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="359"/>
        <source>Show Only Selected Files</source>
        <translation>Mostra solo file selezionati</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="360"/>
        <source>Show All Files</source>
        <translation>Mostra tutti i file</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="380"/>
        <source>Similarity</source>
        <translation>Somiglianza</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="414"/>
        <location filename="../../src/results/ResultForm.cpp" line="1769"/>
        <source>Move to Recycle Bin</source>
        <translation>Sposta nel Cestino</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="415"/>
        <location filename="../../src/results/ResultForm.cpp" line="1770"/>
        <source>Remove permanently</source>
        <translation>Elimina definitivamente</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="416"/>
        <location filename="../../src/results/ResultForm.cpp" line="1771"/>
        <source>Move to Folder</source>
        <translation>Sposta in una cartella</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="451"/>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="502"/>
        <source>Loading Data</source>
        <translation>Caricamento dati</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="502"/>
        <source>Data is still loading, please wait...</source>
        <translation>I dati sono ancora in caricamento, attendi...</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="635"/>
        <source>%n group(s)</source>
        <translation>
            <numerusform>%n gruppo</numerusform>
            <numerusform>%n gruppi</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="637"/>
        <source>loading…</source>
        <translation>caricamento…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="841"/>
        <source>%1% similar</source>
        <translation>simile al %1%</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="853"/>
        <source>%1 · %n copies · %2</source>
        <translation>
            <numerusform>%1 · %n copia · %2</numerusform>
            <numerusform>%1 · %n copie · %2</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="972"/>
        <source>Ignore Group</source>
        <translation>Ignora gruppo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="974"/>
        <source>Remove Selected Files of This Group</source>
        <translation>Rimuovi i file selezionati di questo gruppo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="990"/>
        <location filename="../../src/results/ResultForm.cpp" line="1050"/>
        <source>Show in Folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="991"/>
        <source>Hide from Results</source>
        <translation>Nascondi dai risultati</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="993"/>
        <source>Remove This File</source>
        <translation>Rimuovi questo file</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1041"/>
        <source>Open Link Failed</source>
        <translation>Impossibile aprire il collegamento</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1041"/>
        <source>Failed to get the web link for the file.</source>
        <translation>Impossibile ottenere il collegamento web del file.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1050"/>
        <location filename="../../src/results/ResultForm.cpp" line="1456"/>
        <source>The file was not found.</source>
        <translation>Il file non è stato trovato.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1106"/>
        <location filename="../../src/results/ResultForm.cpp" line="1292"/>
        <location filename="../../src/results/ResultForm.cpp" line="1558"/>
        <location filename="../../src/results/ResultForm.cpp" line="1611"/>
        <location filename="../../src/results/ResultForm.cpp" line="1635"/>
        <source>Delete Failed</source>
        <translation>Eliminazione non riuscita</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1107"/>
        <location filename="../../src/results/ResultForm.cpp" line="1612"/>
        <source>Failed to delete the file: %1</source>
        <translation>Impossibile eliminare il file: %1</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1166"/>
        <source>No selected</source>
        <translation>Nessuna selezione</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1166"/>
        <source>The current group has no selected files.</source>
        <translation>Il gruppo corrente non ha file selezionati.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1207"/>
        <source>Selected files will be moved into the Cloud Drive&apos;s Recycle Bin, and they may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>I file selezionati verranno spostati nel cestino dell&apos;unità cloud; quelli troppo grandi potrebbero essere eliminati definitivamente. Vuoi davvero eliminarli?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1211"/>
        <source>The selected files will be permanently deleted, are you sure to delete?</source>
        <translation>I file selezionati verranno eliminati definitivamente. Vuoi davvero eliminarli?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1213"/>
        <source>Selected files will be moved into the Recycle Bin, and it may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>I file selezionati verranno spostati nel Cestino; quelli troppo grandi potrebbero essere eliminati definitivamente. Vuoi davvero eliminarli?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1256"/>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1256"/>
        <source>No Selected Files!</source>
        <translation>Nessun file selezionato!</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1271"/>
        <source>In some groups every copy is selected, so nothing of them would be kept.

Remove every copy of those files too? With &quot;No&quot; one copy of each stays.</source>
        <translation>In alcuni gruppi sono selezionate tutte le copie, quindi non ne resterebbe nessuna.

Rimuovere anche tutte le copie di questi file? Con &quot;No&quot; ne resta una copia per ciascuno.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1293"/>
        <source>Nothing was removed: the removal record %1 cannot be written (%2).</source>
        <translation>Non è stato rimosso nulla: impossibile scrivere il registro delle eliminazioni %1 (%2).</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1306"/>
        <location filename="../../src/results/ResultForm.cpp" line="1576"/>
        <source>Removing files</source>
        <translation>Rimozione dei file</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1308"/>
        <location filename="../../src/results/ResultForm.cpp" line="1578"/>
        <source>Removing the selected files…</source>
        <translation>Rimozione dei file selezionati…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1385"/>
        <source>the removal record cannot be written: %1</source>
        <translation>impossibile scrivere il registro delle eliminazioni: %1</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1440"/>
        <source>The cloud service did not remove it.</source>
        <translation>Il servizio cloud non ha rimosso il file.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1444"/>
        <source>The file changed after the scan.</source>
        <translation>Il file è cambiato dopo la scansione.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1446"/>
        <source>No other copy of it would be left.</source>
        <translation>Non resterebbe nessun’altra copia.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1448"/>
        <source>Its content no longer matches the copy that stays.</source>
        <translation>Il contenuto non corrisponde più alla copia che resta.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1450"/>
        <source>Not everything in it has a copy in the folder that stays.</source>
        <translation>Non tutto il contenuto ha una copia nella cartella che resta.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1452"/>
        <source>Every copy of its group was selected; this one stays.</source>
        <translation>Erano selezionate tutte le copie del gruppo; questa resta.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1459"/>
        <source>The item is not a file.</source>
        <translation>L&apos;elemento non è un file.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1461"/>
        <source>The item is not a directory.</source>
        <translation>L&apos;elemento non è una cartella.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1463"/>
        <source>Failed to move the file.</source>
        <translation>Impossibile spostare il file.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1469"/>
        <source>Permission denied. Please check the file&apos;s access rights.</source>
        <translation>Accesso negato. Verifica i permessi di accesso del file.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1471"/>
        <source>The file is currently in use and cannot be deleted.</source>
        <translation>Il file è in uso e non può essere eliminato.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1473"/>
        <source>Failed to move the file to the recycle bin.</source>
        <translation>Impossibile spostare il file nel Cestino.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1476"/>
        <source>An unknown error occurred while deleting the file.</source>
        <translation>Si è verificato un errore sconosciuto durante l&apos;eliminazione del file.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1559"/>
        <source>Nothing was removed: every selected file is the last copy of its group.</source>
        <translation>Non è stato rimosso nulla: ogni file selezionato è l&apos;ultima copia del suo gruppo.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1633"/>
        <source>Failed to delete the files. </source>
        <translation>Impossibile eliminare i file. </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1697"/>
        <source>Incomplete scan</source>
        <translation>Scansione incompleta</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1698"/>
        <source>This scan could not complete the image matching process due to &lt;br&gt;memory and disk space limitations. Please delete duplicate files&lt;br&gt;or select fewer folders and try again. Ensure at least 1GB of &lt;br&gt;memory and 1GB of free space on the system drive is available. &lt;br&gt;</source>
        <translation>Questa scansione non ha potuto completare il confronto delle immagini per &lt;br&gt;limiti di memoria e di spazio su disco. Elimina i file duplicati&lt;br&gt;o seleziona meno cartelle e riprova. Assicurati che siano disponibili almeno 1 GB di &lt;br&gt;memoria e 1 GB di spazio libero sull&apos;unità di sistema. &lt;br&gt;</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Hard Link</source>
        <translation>Sostituisci con collegamento fisico</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Reflink (Copy-on-Write)</source>
        <translation>Sostituisci con reflink (copy-on-write)</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Symbolic Link</source>
        <translation>Sostituisci con collegamento simbolico</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by links…</source>
        <translation>Sostituisci con collegamenti…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>A folder is not replaced by a link; only files are.</source>
        <translation>Una cartella non viene sostituita da un collegamento; solo i file.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>No copy that stays is on the same drive, as a hard link needs.</source>
        <translation>Nessuna copia mantenuta si trova sulla stessa unità, come richiede un collegamento fisico.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>No copy that stays is on the same drive, as a reflink needs.</source>
        <translation>Nessuna copia mantenuta si trova sulla stessa unità, come richiede un reflink.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>The file system cannot clone files (reflink).</source>
        <translation>Il file system non può clonare file (reflink).</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>The copy that stays changed while the link was made.</source>
        <translation>La copia mantenuta è cambiata mentre veniva creato il collegamento.</translation>
    </message>
    <message>
        <source>Export as CSV…</source>
        <translation>Esporta come CSV…</translation>
    </message>
    <message>
        <source>Write every group as a table (CSV) for spreadsheets and scripts</source>
        <translation>Scrive tutti i gruppi in una tabella (CSV) per fogli di calcolo e script</translation>
    </message>
</context>
<context>
    <name>ScanConfigCheck</name>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="48"/>
        <source>The minimum file size %1 KB is outside %2 to %3 KB.</source>
        <translation>La dimensione minima del file %1 KB è fuori dall&apos;intervallo da %2 a %3 KB.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="51"/>
        <source>The maximum file size %1 MB is outside %2 to %3 MB.</source>
        <translation>La dimensione massima del file %1 MB è fuori dall&apos;intervallo da %2 a %3 MB.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="60"/>
        <source>The minimum file size %1 KB is not below the maximum file size %2 MB, so no file would be scanned.</source>
        <translation>La dimensione minima %1 KB non è inferiore alla massima %2 MB, quindi nessun file verrebbe analizzato.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="69"/>
        <source>The similarity threshold %1% is outside %2% to %3%.</source>
        <translation>La soglia di somiglianza %1% è fuori dall&apos;intervallo da %2% a %3%.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="74"/>
        <source>The feature similarity threshold %1% is outside %2% to %3%.</source>
        <translation>La soglia di somiglianza delle caratteristiche %1% è fuori dall&apos;intervallo da %2% a %3%.</translation>
    </message>
</context>
<context>
    <name>Selection</name>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="20"/>
        <source>Scan method</source>
        <translation>Metodo di scansione</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="26"/>
        <source>Randomly read parts of the file for comparison to improve scanning efficiency</source>
        <translation>Confronta parti casuali di ogni file per una scansione più rapida</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="33"/>
        <source>Read the entire file contents to improve accuracy</source>
        <translation>Leggi l&apos;intero contenuto del file per una maggiore precisione</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="40"/>
        <source>Files with the same name and size</source>
        <translation>File con lo stesso nome e la stessa dimensione</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="50"/>
        <source>Select duplicates for removal following preset rules below</source>
        <translation>Seleziona i duplicati da rimuovere secondo le regole seguenti</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="56"/>
        <source>Select newest duplicates for removal</source>
        <translation>Seleziona i duplicati più recenti</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="63"/>
        <source>Select oldest duplicates for removal</source>
        <translation>Seleziona i duplicati più vecchi</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="70"/>
        <source>Select duplicates for removal by filename</source>
        <translation>Seleziona i duplicati in base al nome del file</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="77"/>
        <source>Select duplicates for removal from prioritized location</source>
        <translation>Seleziona i duplicati dalle posizioni prioritarie</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="117"/>
        <source>Priority</source>
        <translation>Priorità</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="122"/>
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="132"/>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="139"/>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="163"/>
        <source>The larger the value, the higher priority to delete. Double click to change the value and it&apos;s priority.</source>
        <translation>Più alto è il valore, maggiore è la priorità di eliminazione. Fai doppio clic sul valore per cambiare la priorità.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="179"/>
        <source>Scanning duplicate directories</source>
        <translation>Cerca anche cartelle duplicate</translation>
    </message>
</context>
<context>
    <name>TCloudFolderDialog</name>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="49"/>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="53"/>
        <source>Check the folders to scan in %1. A checked folder includes everything inside it.</source>
        <translation>Seleziona le cartelle da scansionare in %1. Una cartella selezionata include tutto il suo contenuto.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="69"/>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="169"/>
        <source>Network Request Error</source>
        <translation>Errore nella richiesta di rete</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="170"/>
        <source>The network request failed. Please log in again to re-authorize your account.</source>
        <translation>La richiesta di rete non è riuscita. Accedi di nuovo per autorizzare nuovamente il tuo account.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="179"/>
        <source>Loading folders…</source>
        <translation>Caricamento delle cartelle…</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="179"/>
        <source>%n folder(s) chosen</source>
        <translation>
            <numerusform>%n cartella selezionata</numerusform>
            <numerusform>%n cartelle selezionate</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TImageItemDelegate</name>
    <message>
        <location filename="../../src/results/TImageItemDelegate.cpp" line="204"/>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>TImageModel</name>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Hide from results</source>
        <translation>Nascondi dai risultati</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="83"/>
        <source>%n copies</source>
        <translation>
            <numerusform>%n copia</numerusform>
            <numerusform>%n copie</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="85"/>
        <source>%n selected</source>
        <translation>
            <numerusform>%n selezionata</numerusform>
            <numerusform>%n selezionate</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="149"/>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="149"/>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="151"/>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="153"/>
        <source>Modified</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <source>In a protected folder: this copy is always kept and cannot be selected.</source>
        <translation>In una cartella protetta: questa copia viene sempre mantenuta e non può essere selezionata.</translation>
    </message>
</context>
<context>
    <name>TOpenSaveThread</name>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="223"/>
        <source>The project file could not be opened.</source>
        <translation>Impossibile aprire il file di progetto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="225"/>
        <source>The project file is damaged or incomplete.</source>
        <translation>Il file di progetto è danneggiato o incompleto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="227"/>
        <source>This file is not a project file of this program.</source>
        <translation>Questo file non è un file di progetto di questo programma.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="229"/>
        <source>The project file contains invalid data and was not opened.</source>
        <translation>Il file di progetto contiene dati non validi e non è stato aperto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="231"/>
        <source>None of the duplicate groups in this project exist any more.</source>
        <translation>Nessuno dei gruppi di duplicati di questo progetto esiste più.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="233"/>
        <source>The project file could not be saved.</source>
        <translation>Impossibile salvare il file di progetto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="235"/>
        <source>The operation was cancelled.</source>
        <translation>L&apos;operazione è stata annullata.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="237"/>
        <source>Unknown error.</source>
        <translation>Errore sconosciuto.</translation>
    </message>
</context>
<context>
    <name>TPieChart</name>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="189"/>
        <source>Images</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="191"/>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="193"/>
        <source>Musics</source>
        <translation>Musica</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="195"/>
        <source>Videos</source>
        <translation>Video</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="197"/>
        <source>Folder</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="199"/>
        <source>Others</source>
        <translation>Altri</translation>
    </message>
</context>
<context>
    <name>CListViewDelegate</name>
    <message>
        <source>Protected</source>
        <translation>Protetta</translation>
    </message>
    <message>
        <source>Protected: nothing in this folder is selected or removed. Click to lift the protection.</source>
        <translation>Protetta: nulla in questa cartella viene selezionato o rimosso. Fai clic per togliere la protezione.</translation>
    </message>
    <message>
        <source>Protect this folder: nothing in it will be selected or removed.</source>
        <translation>Proteggi questa cartella: nulla al suo interno verrà selezionato o rimosso.</translation>
    </message>
</context>
<context>
    <name>ProtectedFolderList</name>
    <message>
        <source>Protected folders</source>
        <translation>Cartelle protette</translation>
    </message>
    <message>
        <source>Nothing in these folders is ever selected or removed. Their copies still count as the ones that stay.</source>
        <translation>Nulla in queste cartelle viene mai selezionato o rimosso. Le loro copie contano comunque come quelle che restano.</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
</context>
</TS>
