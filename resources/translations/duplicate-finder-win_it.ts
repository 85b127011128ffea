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
    <name>DFIgnoreListWidget</name>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="159"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="166"/>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="160"/>
        <source>The maximum file size cannot be less than the minimum file size.</source>
        <translation>La dimensione massima del file non può essere inferiore a quella minima.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="167"/>
        <source>Please select the folder where the deleted files will be moved to.</source>
        <translation>Seleziona la cartella in cui spostare i file eliminati.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="221"/>
        <source>Select folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="231"/>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="239"/>
        <source>All Files (*.*)</source>
        <translation>Tutti i file (*.*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="242"/>
        <source>All Files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="245"/>
        <source>Select Files</source>
        <translation>Seleziona file</translation>
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
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="90"/>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="91"/>
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
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="327"/>
        <source>Files scanned</source>
        <translation>File analizzati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="328"/>
        <source>Duplicates found</source>
        <translation>Duplicati trovati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="329"/>
        <source>Size of duplicates</source>
        <translation>Dimensione dei duplicati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="330"/>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="331"/>
        <source>Elapsed time</source>
        <translation>Tempo trascorso</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="378"/>
        <source>Local Computer</source>
        <translation>Computer locale</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="401"/>
        <source>User Guide</source>
        <translation>Guida utente</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="402"/>
        <source>Product FAQ</source>
        <translation>Domande frequenti</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="403"/>
        <source>Feedback and Support</source>
        <translation>Feedback e supporto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="404"/>
        <source>Check for Updates</source>
        <translation>Verifica aggiornamenti</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="405"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1130"/>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="406"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1148"/>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="418"/>
        <source>Show Log in Explorer</source>
        <translation>Mostra log in Esplora risorse</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="420"/>
        <source>Open Project</source>
        <translation>Apri progetto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="421"/>
        <source>Save Project</source>
        <translation>Salva progetto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="422"/>
        <source>Show Results</source>
        <translation>Mostra risultati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="461"/>
        <source>Scan</source>
        <translation>Scansiona</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="474"/>
        <source>Stop</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="482"/>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="488"/>
        <source>New Scan</source>
        <translation>Nuova scansione</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="493"/>
        <source>Show results</source>
        <translation>Mostra risultati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="550"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation>&quot;%1&quot; è un file, non una cartella. Si possono analizzare solo cartelle: aggiungi invece la cartella che lo contiene.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="554"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation>Impossibile trovare &quot;%1&quot;. Potrebbe essere stato spostato o rimosso.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="557"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>%n elemento non è stato aggiunto perché non è una cartella:</numerusform>
            <numerusform>%n elementi non sono stati aggiunti perché non sono cartelle:</numerusform>
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
        <translation>Nota</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="580"/>
        <source>%n folder(s) added</source>
        <translation>
            <numerusform>%n cartella aggiunta</numerusform>
            <numerusform>%n cartelle aggiunte</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="610"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="693"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>Dopo aver aggiunto account e cartelle cloud, non è più possibile aggiungere cartelle locali.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="614"/>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="627"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>Dopo aver aggiunto cartelle locali, non è più possibile aggiungere account cloud.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="824"/>
        <source>%1 and %2 could not be read.</source>
        <translation>Impossibile leggere %1 e %2.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="825"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n cartella</numerusform>
            <numerusform>%n cartelle</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="825"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n file</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="827"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>Impossibile leggere %n cartella.</numerusform>
            <numerusform>Impossibile leggere %n cartelle.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="829"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>Impossibile leggere %n file.</numerusform>
            <numerusform>Impossibile leggere %n file.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="850"/>
        <source>Folders that could not be read</source>
        <translation>Cartelle che non è stato possibile leggere</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="851"/>
        <source>Files that could not be read</source>
        <translation>File che non è stato possibile leggere</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="852"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation>Collegamenti non seguiti perché portano fuori dalle cartelle scelte</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="854"/>
        <source>System folders not entered</source>
        <translation>Cartelle di sistema non esplorate</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="862"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>%n collegamento che porta fuori dalle cartelle scelte non è stato seguito.</numerusform>
            <numerusform>%n collegamenti che portano fuori dalle cartelle scelte non sono stati seguiti.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="869"/>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="878"/>
        <source>The chosen folder could not be read.</source>
        <translation>Impossibile leggere la cartella scelta.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="879"/>
        <source>The chosen folders could not be read.</source>
        <translation>Impossibile leggere le cartelle scelte.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="881"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation>Verifica che esista ancora e di avere il permesso di aprirla.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="882"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation>Verifica che esistano ancora e di avere il permesso di aprirle.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="901"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1004"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1057"/>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="902"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation>&quot;%1&quot; è una cartella, non un file di progetto. Per analizzarla, aggiungila con il pulsante +.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="905"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation>Il file di progetto &quot;%1&quot; non esiste.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1017"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1056"/>
        <source>Save File</source>
        <translation>Salva file</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1070"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>I risultati della scansione cloud non possono essere salvati.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1098"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1198"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>I risultati della scansione corrente non sono stati salvati. Salvare il file?</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1131"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;Versione %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1149"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>La nuova lingua sarà applicata al prossimo avvio del programma.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1183"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>Rilevata chiusura anomala durante l&apos;ultima eliminazione</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1186"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Elementi elaborati prima dell’interruzione: %1 di %2.&lt;br&gt;Il registro delle eliminazioni elenca ciascuno e dove è finito:&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1184"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>Il programma si è chiuso in modo imprevisto durante l&apos;ultima eliminazione in blocco,&lt;br&gt;forse a causa di un software antivirus.&lt;br&gt;&lt;br&gt;Disattivare temporaneamente l&apos;antivirus o aggiungere questa applicazione&lt;br&gt;al suo elenco di esclusioni per evitare errori di eliminazione o arresti anomali.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>Open Data Folder</source>
        <translation>Apri cartella dati</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="791"/>
        <source>Error</source>
        <translation>Errore</translation>
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
    <name>TOpenSaveThread</name>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="144"/>
        <source>The project file could not be opened.</source>
        <translation>Impossibile aprire il file di progetto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="146"/>
        <source>The project file is damaged or incomplete.</source>
        <translation>Il file di progetto è danneggiato o incompleto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="148"/>
        <source>This file is not a project file of this program.</source>
        <translation>Questo file non è un file di progetto di questo programma.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="150"/>
        <source>The project file contains invalid data and was not opened.</source>
        <translation>Il file di progetto contiene dati non validi e non è stato aperto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="152"/>
        <source>None of the duplicate groups in this project exist any more.</source>
        <translation>Nessuno dei gruppi di duplicati di questo progetto esiste più.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="154"/>
        <source>The project file could not be saved.</source>
        <translation>Impossibile salvare il file di progetto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="156"/>
        <source>The operation was cancelled.</source>
        <translation>L&apos;operazione è stata annullata.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="158"/>
        <source>Unknown error.</source>
        <translation>Errore sconosciuto.</translation>
    </message>
</context>
</TS>
