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
    <name>DFIgnoreListWidget</name>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="159"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="166"/>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="160"/>
        <source>The maximum file size cannot be less than the minimum file size.</source>
        <translation>Die maximale Dateigröße darf nicht kleiner als die minimale Dateigröße sein.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="167"/>
        <source>Please select the folder where the deleted files will be moved to.</source>
        <translation>Bitte wählen Sie den Ordner, in den die gelöschten Dateien verschoben werden.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="221"/>
        <source>Select folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="231"/>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="239"/>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="242"/>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="245"/>
        <source>Select Files</source>
        <translation>Dateien auswählen</translation>
    </message>
</context>
<context>
    <name>DFPreferencesDialog</name>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="14"/>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="39"/>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="44"/>
        <source>Duplicate files</source>
        <translation>Doppelte Dateien</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="49"/>
        <source>Similar images</source>
        <translation>Ähnliche Bilder</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="62"/>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="85"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="95"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="90"/>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="91"/>
        <source>You cannot change settings of preferences while the scan is in progress.</source>
        <translation>Während eines Scans können die Einstellungen nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>DFSelectionWidget</name>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <source>The folder has been added.</source>
        <translation>Der Ordner wurde bereits hinzugefügt.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="179"/>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <source>%1 is not a number.</source>
        <translation>%1 ist keine Zahl.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>%1 is added.</source>
        <translation>%1 ist bereits vergeben.</translation>
    </message>
</context>
<context>
    <name>Genernal</name>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="20"/>
        <source>Enable similar images function</source>
        <translation>Suche nach ähnlichen Bildern aktivieren</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="27"/>
        <source>Similarity Comparison Algorithms</source>
        <translation>Algorithmen für den Ähnlichkeitsvergleich</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="36"/>
        <source>Smart Selection</source>
        <translation>Automatische Wahl</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="43"/>
        <source>Histogram Data Comparison (Quality First)</source>
        <translation>Histogrammvergleich (Qualität zuerst)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="50"/>
        <source>pHash Data Comparison (Speed First)</source>
        <translation>pHash-Vergleich (Geschwindigkeit zuerst)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="69"/>
        <source>Histogram similarity</source>
        <translation>Histogramm-Ähnlichkeit</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="102"/>
        <source>The basic algorithm detects similar images quickly but vaguely, the larger the value, the higher the similarty.</source>
        <translation>Der einfache Algorithmus findet ähnliche Bilder schnell, aber ungenau. Je größer der Wert, desto ähnlicher müssen die Bilder sein.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="112"/>
        <source>Features similarity</source>
        <translation>Merkmal-Ähnlichkeit</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="139"/>
        <source>The advanced algorithm detects similar images through feature points in the image. Using this algorithm, detecting simialr images takes more time, but the result will be more accurate. The larger the value, the higher the similarity.</source>
        <translation>Der erweiterte Algorithmus erkennt ähnliche Bilder anhand von Merkmalspunkten im Bild. Die Suche dauert damit länger, das Ergebnis ist aber genauer. Je größer der Wert, desto ähnlicher müssen die Bilder sein.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="152"/>
        <source>No comparision between different types of images</source>
        <translation>Bilder unterschiedlichen Typs nicht vergleichen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="161"/>
        <source>Compare images with similar size and aspect ratio (within ratio)</source>
        <translation>Nur Bilder mit ähnlicher Größe und ähnlichem Seitenverhältnis vergleichen (bis Faktor)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="196"/>
        <source>Select similar images for removal following preset rules below </source>
        <translation>Ähnliche Bilder nach den folgenden Regeln zum Entfernen auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="211"/>
        <source>Follow the duplicates removal rule</source>
        <translation>Regel für Duplikate übernehmen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="218"/>
        <source>Select high-resolution similar images for removal</source>
        <translation>Höher aufgelöste Bilder auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="225"/>
        <source>Select low-resolution similar images for removal</source>
        <translation>Niedriger aufgelöste Bilder auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="232"/>
        <source>Select high-quality similar images for removal</source>
        <translation>Bilder höherer Qualität auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="239"/>
        <source>Select low-quality similar images for removal</source>
        <translation>Bilder niedrigerer Qualität auswählen</translation>
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
    <name>IgnoreList</name>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="25"/>
        <source>Remove method</source>
        <translation>Entfernungsmethode</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="31"/>
        <source>Move to Recycle Bin</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="38"/>
        <source>Remove permanently</source>
        <translation>Endgültig löschen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="45"/>
        <source>Move to Folder</source>
        <translation>In Ordner verschieben</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="67"/>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="79"/>
        <source>Select minimum and maximum file size</source>
        <translation>Minimale und maximale Dateigröße</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="88"/>
        <source>Minimum file size </source>
        <translation>Minimale Dateigröße</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="111"/>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="118"/>
        <source>Maximum file size</source>
        <translation>Maximale Dateigröße</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="141"/>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="166"/>
        <source>Ignore folders and files in the list</source>
        <translation>Ordner und Dateien dieser Liste ignorieren</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="187"/>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="194"/>
        <source>Add files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="201"/>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="208"/>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="233"/>
        <source>Support or Ignore</source>
        <translation>Einschließen oder ignorieren</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="239"/>
        <source>Separate extensions with comma, such as txt, avi, dll</source>
        <translation>Erweiterungen durch Kommas trennen, z. B. txt, avi, dll</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="249"/>
        <source>Scan only file formats:</source>
        <translation>Nur diese Dateiformate scannen:</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="259"/>
        <source>Ignore scanning file formats:</source>
        <translation>Diese Dateiformate ignorieren:</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="272"/>
        <source>Ignore system hidden folders and files</source>
        <translation>Versteckte Ordner und Systemdateien ignorieren</translation>
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
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>Open Data Folder</source>
        <translation>Datenordner öffnen</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="791"/>
        <source>Error</source>
        <translation>Fehler</translation>
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
    <name>ScanConfigCheck</name>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="48"/>
        <source>The minimum file size %1 KB is outside %2 to %3 KB.</source>
        <translation>Die minimale Dateigröße %1 KB liegt außerhalb von %2 bis %3 KB.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="51"/>
        <source>The maximum file size %1 MB is outside %2 to %3 MB.</source>
        <translation>Die maximale Dateigröße %1 MB liegt außerhalb von %2 bis %3 MB.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="60"/>
        <source>The minimum file size %1 KB is not below the maximum file size %2 MB, so no file would be scanned.</source>
        <translation>Die minimale Dateigröße %1 KB liegt nicht unter der maximalen Dateigröße %2 MB, daher würde keine Datei gescannt.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="69"/>
        <source>The similarity threshold %1% is outside %2% to %3%.</source>
        <translation>Der Ähnlichkeitsschwellenwert %1 % liegt außerhalb von %2 % bis %3 %.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="74"/>
        <source>The feature similarity threshold %1% is outside %2% to %3%.</source>
        <translation>Der Schwellenwert der Merkmal-Ähnlichkeit %1 % liegt außerhalb von %2 % bis %3 %.</translation>
    </message>
</context>
<context>
    <name>Selection</name>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="20"/>
        <source>Scan method</source>
        <translation>Scanmethode</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="26"/>
        <source>Randomly read parts of the file for comparison to improve scanning efficiency</source>
        <translation>Stichproben aus jeder Datei vergleichen, um schneller zu scannen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="33"/>
        <source>Read the entire file contents to improve accuracy</source>
        <translation>Den gesamten Dateiinhalt lesen, um genauer zu vergleichen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="40"/>
        <source>Files with the same name and size</source>
        <translation>Dateien mit gleichem Namen und gleicher Größe</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="50"/>
        <source>Select duplicates for removal following preset rules below</source>
        <translation>Duplikate nach den folgenden Regeln zum Entfernen auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="56"/>
        <source>Select newest duplicates for removal</source>
        <translation>Die neuesten Duplikate auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="63"/>
        <source>Select oldest duplicates for removal</source>
        <translation>Die ältesten Duplikate auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="70"/>
        <source>Select duplicates for removal by filename</source>
        <translation>Duplikate anhand des Dateinamens auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="77"/>
        <source>Select duplicates for removal from prioritized location</source>
        <translation>Duplikate aus priorisierten Ordnern auswählen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="117"/>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="122"/>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="132"/>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="139"/>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="163"/>
        <source>The larger the value, the higher priority to delete. Double click to change the value and it&apos;s priority.</source>
        <translation>Je größer der Wert, desto eher wird in diesem Ordner entfernt. Doppelklicken Sie auf den Wert, um die Priorität zu ändern.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="179"/>
        <source>Scanning duplicate directories</source>
        <translation>Auch doppelte Ordner suchen</translation>
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
