<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>CsvExportRun</name>
    <message>
        <source>Export Failed</source>
        <translation>Échec de l&apos;exportation</translation>
    </message>
    <message>
        <source>The table could not be written to %1:
%2</source>
        <translation>Le tableau n&apos;a pas pu être écrit dans %1 :
%2</translation>
    </message>
    <message>
        <source>Export as CSV</source>
        <translation>Exporter en CSV</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>Tableaux CSV (*.csv)</translation>
    </message>
</context>
<context>
    <name>MoveTargetDialog</name>
    <message>
        <source>Move to Folder</source>
        <translation>Déplacer vers un dossier</translation>
    </message>
    <message>
        <source>Move the selected items into this folder:</source>
        <translation>Déplacer les éléments sélectionnés dans ce dossier :</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisissez un dossier</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Parcourir…</translation>
    </message>
    <message>
        <source>Keep the folder structure</source>
        <translation>Conserver l&apos;arborescence des dossiers</translation>
    </message>
    <message>
        <source>Each item goes into the same sub-folders below the target as below the scanned folder that holds it, so that moved files keep their context. Without it, every item lands in the target itself.</source>
        <translation>Chaque élément va dans les mêmes sous-dossiers sous la cible que sous le dossier analysé qui le contient, afin que les fichiers déplacés gardent leur contexte. Sinon, chaque élément arrive directement dans la cible.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
</context>
<context>
    <name>CustomProgressDialog</name>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="34"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="91"/>
        <source>Cancelling...</source>
        <translation>Annulation...</translation>
    </message>
</context>
<context>
    <name>DFGeneralWidget</name>
    <message>
        <source>The robust comparison checks every uncertain pair by its key points itself.</source>
        <translation>La comparaison robuste vérifie elle-même chaque paire incertaine par ses points caractéristiques.</translation>
    </message>
    <message>
        <source>Lowest similarity</source>
        <translation>Similarité minimale</translation>
    </message>
    <message>
        <source>The robust comparison shows a match only when the pictures are at least this similar.</source>
        <translation>La comparaison robuste n&apos;affiche une correspondance que si les images sont au moins aussi similaires.</translation>
    </message>
</context>
<context>
    <name>DFIgnoreListWidget</name>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="191"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="199"/>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="192"/>
        <source>The maximum file size cannot be less than the minimum file size.</source>
        <translation>La taille maximale de fichier ne peut pas être inférieure à la taille minimale.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="200"/>
        <source>Please select the folder where the deleted files will be moved to.</source>
        <translation>Veuillez sélectionner le dossier où les fichiers supprimés seront déplacés.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="254"/>
        <source>Select folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="264"/>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="272"/>
        <source>All Files (*.*)</source>
        <translation>Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="275"/>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="278"/>
        <source>Select Files</source>
        <translation>Sélectionner des fichiers</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="98"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="112"/>
        <source>Clear cache</source>
        <translation>Vider le cache</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="99"/>
        <source>The cache is in use by a running scan. Try again when it has ended.</source>
        <translation>Le cache est utilisé par une recherche en cours. Réessayez lorsqu&apos;elle sera terminée.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="111"/>
        <source>Content keys kept from earlier scans: %1</source>
        <translation>Clés de contenu conservées des recherches précédentes : %1</translation>
    </message>
</context>
<context>
    <name>DFPreferencesDialog</name>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="14"/>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="39"/>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="44"/>
        <source>Duplicate files</source>
        <translation>Fichiers en double</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="49"/>
        <source>Similar images</source>
        <translation>Images similaires</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="62"/>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="85"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="95"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="97"/>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="98"/>
        <source>You cannot change settings of preferences while the scan is in progress.</source>
        <translation>Impossible de modifier les paramètres pendant une analyse.</translation>
    </message>
</context>
<context>
    <name>DFSelectionWidget</name>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <source>The folder has been added.</source>
        <translation>Ce dossier a déjà été ajouté.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="179"/>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <source>%1 is not a number.</source>
        <translation>%1 n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>%1 is added.</source>
        <translation>%1 est déjà attribué.</translation>
    </message>
</context>
<context>
    <name>Genernal</name>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="20"/>
        <source>Enable similar images function</source>
        <translation>Activer la recherche d&apos;images similaires</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="27"/>
        <source>Similarity Comparison Algorithms</source>
        <translation>Algorithmes de comparaison de similarité</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="36"/>
        <source>Smart Selection</source>
        <translation>Sélection intelligente</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="43"/>
        <source>Histogram Data Comparison (Quality First)</source>
        <translation>Comparaison d&apos;histogrammes (qualité d&apos;abord)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="50"/>
        <source>pHash Data Comparison (Speed First)</source>
        <translation>Comparaison pHash (vitesse d&apos;abord)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="69"/>
        <source>Histogram similarity</source>
        <translation>Similarité d&apos;histogramme</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="102"/>
        <source>The basic algorithm detects similar images quickly but vaguely, the larger the value, the higher the similarty.</source>
        <translation>L&apos;algorithme de base détecte les images similaires rapidement mais de façon approximative. Plus la valeur est élevée, plus la similarité exigée est grande.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="112"/>
        <source>Features similarity</source>
        <translation>Similarité des caractéristiques</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="139"/>
        <source>The advanced algorithm detects similar images through feature points in the image. Using this algorithm, detecting simialr images takes more time, but the result will be more accurate. The larger the value, the higher the similarity.</source>
        <translation>L&apos;algorithme avancé détecte les images similaires à l&apos;aide de points caractéristiques de l&apos;image. La recherche prend alors plus de temps, mais le résultat est plus précis. Plus la valeur est élevée, plus la similarité exigée est grande.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="152"/>
        <source>No comparision between different types of images</source>
        <translation>Ne pas comparer des images de types différents</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="161"/>
        <source>Compare images with similar size and aspect ratio (within ratio)</source>
        <translation>Ne comparer que des images de taille et de proportions proches (jusqu&apos;au facteur)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="196"/>
        <source>Select similar images for removal following preset rules below </source>
        <translation>Sélectionner les images similaires à supprimer selon les règles ci-dessous</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="211"/>
        <source>Follow the duplicates removal rule</source>
        <translation>Suivre la règle des doublons</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="218"/>
        <source>Select high-resolution similar images for removal</source>
        <translation>Sélectionner les images de haute résolution</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="225"/>
        <source>Select low-resolution similar images for removal</source>
        <translation>Sélectionner les images de basse résolution</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="232"/>
        <source>Select high-quality similar images for removal</source>
        <translation>Sélectionner les images de haute qualité</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="239"/>
        <source>Select low-quality similar images for removal</source>
        <translation>Sélectionner les images de basse qualité</translation>
    </message>
    <message>
        <source>Robust Comparison (Edited Copies)</source>
        <translation>Comparaison robuste (copies modifiées)</translation>
    </message>
    <message>
        <source>Also finds cropped, rotated, mirrored, grey and re-saved copies in any picture format.</source>
        <translation>Trouve aussi les copies recadrées, pivotées, en miroir, en niveaux de gris et réenregistrées, dans tout format d&apos;image.</translation>
    </message>
</context>
<context>
    <name>IgnoreList</name>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="25"/>
        <source>Remove method</source>
        <translation>Méthode de suppression</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="31"/>
        <source>Move to Recycle Bin</source>
        <translation>Déplacer vers la corbeille</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="38"/>
        <source>Remove permanently</source>
        <translation>Supprimer définitivement</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="45"/>
        <source>Move to Folder</source>
        <translation>Déplacer vers un dossier</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="67"/>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="79"/>
        <source>Select minimum and maximum file size</source>
        <translation>Taille minimale et maximale des fichiers</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="88"/>
        <source>Minimum file size </source>
        <translation>Taille minimale</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="111"/>
        <source>KB</source>
        <translation>Ko</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="118"/>
        <source>Maximum file size</source>
        <translation>Taille maximale</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="141"/>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="166"/>
        <source>Ignore folders and files in the list</source>
        <translation>Ignorer les dossiers et fichiers de la liste</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="187"/>
        <source>Add folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="194"/>
        <source>Add files</source>
        <translation>Ajouter des fichiers</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="201"/>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="208"/>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="233"/>
        <source>Support or Ignore</source>
        <translation>Inclure ou ignorer</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="239"/>
        <source>Separate extensions with comma, such as txt, avi, dll</source>
        <translation>Séparez les extensions par des virgules, par exemple txt, avi, dll</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="249"/>
        <source>Scan only file formats:</source>
        <translation>Analyser uniquement ces formats :</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="259"/>
        <source>Ignore scanning file formats:</source>
        <translation>Ignorer ces formats :</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="272"/>
        <source>Ignore system hidden folders and files</source>
        <translation>Ignorer les dossiers et fichiers cachés ou système</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by hard link</source>
        <translation>Remplacer par un lien physique</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by reflink (copy-on-write clone)</source>
        <translation>Remplacer par un reflink (clone copie sur écriture)</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by symbolic link</source>
        <translation>Remplacer par un lien symbolique</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Looking for files…</source>
        <translation>Recherche des fichiers…</translation>
    </message>
    <message>
        <source>Comparing files of the same size…</source>
        <translation>Comparaison des fichiers de même taille…</translation>
    </message>
    <message>
        <source>Reading pictures…</source>
        <translation>Lecture des images…</translation>
    </message>
    <message>
        <source>Reading pictures %1</source>
        <translation>Lecture des images %1</translation>
    </message>
    <message>
        <source>Comparing pictures %1</source>
        <translation>Comparaison des images %1</translation>
    </message>
    <message>
        <source>Checking picture details %1</source>
        <translation>Vérification des détails des images %1</translation>
    </message>
    <message>
        <source>Scan stopped – results are incomplete</source>
        <translation>Analyse arrêtée – les résultats sont incomplets</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Analyse terminée</translation>
    </message>
    <message>
        <source>The scan was stopped before any files were compared.</source>
        <translation>L&apos;analyse a été arrêtée avant toute comparaison de fichiers.</translation>
    </message>
    <message>
        <source>No duplicates were found among the files compared before the stop.</source>
        <translation>Aucun doublon parmi les fichiers comparés avant l&apos;arrêt.</translation>
    </message>
    <message>
        <source>Only these file types are scanned: %1</source>
        <translation>Seuls ces types de fichiers sont analysés : %1</translation>
    </message>
    <message>
        <source>These file types are skipped: %1</source>
        <translation>Ces types de fichiers sont ignorés : %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="343"/>
        <source>Files scanned</source>
        <translation>Fichiers analysés</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="344"/>
        <source>Duplicates found</source>
        <translation>Doublons trouvés</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="345"/>
        <source>Size of duplicates</source>
        <translation>Taille des doublons</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="346"/>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="347"/>
        <source>Elapsed time</source>
        <translation>Temps écoulé</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="395"/>
        <source>Local Computer</source>
        <translation>Ordinateur local</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="415"/>
        <source>%1 (needs rclone)</source>
        <translation>%1 (nécessite rclone)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>User Guide</source>
        <translation>Guide de l&apos;utilisateur</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="428"/>
        <source>Product FAQ</source>
        <translation>Questions fréquentes</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="429"/>
        <source>Feedback and Support</source>
        <translation>Commentaires et assistance</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="430"/>
        <source>Check for Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="431"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1373"/>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="432"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1393"/>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="444"/>
        <source>Show Log in Explorer</source>
        <translation>Afficher le journal dans l&apos;explorateur</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="447"/>
        <source>Open Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="448"/>
        <source>Save Project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="449"/>
        <source>Show Results</source>
        <translation>Afficher les résultats</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="488"/>
        <source>Scan</source>
        <translation>Analyser</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="501"/>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="509"/>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="515"/>
        <source>New Scan</source>
        <translation>Nouvelle analyse</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="520"/>
        <source>Show results</source>
        <translation>Afficher les résultats</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="577"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation>« %1 » est un fichier, pas un dossier. Seuls les dossiers peuvent être analysés : ajoutez plutôt le dossier qui le contient.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="581"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation>« %1 » est introuvable. Il a peut-être été déplacé ou supprimé.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="584"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>%n élément n&apos;a pas été ajouté, car ce n&apos;est pas un dossier :</numerusform>
            <numerusform>%n éléments n&apos;ont pas été ajoutés, car ce ne sont pas des dossiers :</numerusform>
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
        <translation>Remarque</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="607"/>
        <source>%n folder(s) added</source>
        <translation>
            <numerusform>%n dossier ajouté</numerusform>
            <numerusform>%n dossiers ajoutés</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="644"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="874"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>Après l&apos;ajout de comptes et de dossiers cloud, les dossiers locaux ne peuvent plus être ajoutés.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="648"/>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="663"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="670"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="731"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="739"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1182"/>
        <source>info</source>
        <translation>Information</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="664"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="732"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>Après l&apos;ajout de dossiers locaux, les comptes cloud ne peuvent plus être ajoutés.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="670"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="739"/>
        <source>Multiple cloud accounts cannot be scanned at the same time.</source>
        <translation>Plusieurs comptes cloud ne peuvent pas être analysés en même temps.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="697"/>
        <source>Sign in to %1</source>
        <translation>Connexion à %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="698"/>
        <source>Finish signing in to %1 in your web browser. This window goes on by itself once you are through.</source>
        <translation>Terminez la connexion à %1 dans votre navigateur web. Cette fenêtre poursuivra d&apos;elle-même une fois que ce sera fait.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="792"/>
        <source>Sign-in Failed</source>
        <translation>Échec de la connexion</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="793"/>
        <source>The cloud account could not be signed in.

%1</source>
        <translation>Impossible de se connecter au compte cloud.

%1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="805"/>
        <source>Insufficient System Disk Space</source>
        <translation>Espace insuffisant sur le lecteur système</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="806"/>
        <source>Thumbnail download was not completed. This may affect similar image detection results. Please free up some disk space and try again.</source>
        <translation>Le téléchargement des miniatures n&apos;a pas abouti. Cela peut affecter les résultats de la détection des images similaires. Libérez de l&apos;espace disque, puis réessayez.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="817"/>
        <source>If no browser window opened, open &lt;a href=&quot;%1&quot;&gt;this sign-in page&lt;/a&gt;.</source>
        <translation>Si aucune fenêtre de navigateur ne s&apos;est ouverte, ouvrez &lt;a href=&quot;%1&quot;&gt;cette page de connexion&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1046"/>
        <source>%1 and %2 could not be read.</source>
        <translation>%1 et %2 n&apos;ont pas pu être lus.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1047"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n dossier</numerusform>
            <numerusform>%n dossiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1047"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1049"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>%n dossier n&apos;a pas pu être lu.</numerusform>
            <numerusform>%n dossiers n&apos;ont pas pu être lus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1051"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>%n fichier n&apos;a pas pu être lu.</numerusform>
            <numerusform>%n fichiers n&apos;ont pas pu être lus.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1072"/>
        <source>Folders that could not be read</source>
        <translation>Dossiers qui n&apos;ont pas pu être lus</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1073"/>
        <source>Files that could not be read</source>
        <translation>Fichiers qui n&apos;ont pas pu être lus</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1074"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation>Liens non suivis, car ils mènent hors des dossiers choisis</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1076"/>
        <source>System folders not entered</source>
        <translation>Dossiers système non parcourus</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1084"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>%n lien menant hors des dossiers choisis n&apos;a pas été suivi.</numerusform>
            <numerusform>%n liens menant hors des dossiers choisis n&apos;ont pas été suivis.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1091"/>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1100"/>
        <source>The chosen folder could not be read.</source>
        <translation>Le dossier choisi n&apos;a pas pu être lu.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1101"/>
        <source>The chosen folders could not be read.</source>
        <translation>Les dossiers choisis n&apos;ont pas pu être lus.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1103"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation>Vérifiez qu&apos;il existe toujours et que vous avez le droit de l&apos;ouvrir.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1104"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation>Vérifiez qu&apos;ils existent toujours et que vous avez le droit de les ouvrir.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1123"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1247"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1300"/>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1124"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation>« %1 » est un dossier, pas un fichier de projet. Pour l&apos;analyser, ajoutez-le avec le bouton +.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1127"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation>Le fichier de projet « %1 » n&apos;existe pas.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1178"/>
        <source>Cloud Scan Failed</source>
        <translation>Échec de l&apos;analyse du cloud</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1179"/>
        <source>The cloud scan could not be completed: %1</source>
        <translation>L&apos;analyse du cloud n&apos;a pas pu être terminée : %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1183"/>
        <source>Thumbnail download was not completed. This may affect similar image detection results. </source>
        <translation>Le téléchargement des miniatures n&apos;a pas abouti. Cela peut affecter les résultats de la détection des images similaires. </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1260"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1299"/>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1313"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>Les résultats de l&apos;analyse du cloud ne peuvent pas être enregistrés.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1341"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1460"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>Les résultats de l&apos;analyse actuelle n&apos;ont pas été enregistrés. Voulez-vous enregistrer le fichier ?</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1374"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;Version %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1394"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>La nouvelle langue sera appliquée au prochain démarrage du programme.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1449"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>Fermeture anormale détectée lors de la dernière suppression</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1444"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Éléments traités avant l’interruption : %1 sur %2.&lt;br&gt;Le journal des suppressions indique chacun d’eux et où il est allé :&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1435"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>Le programme s&apos;est fermé de façon inattendue lors de la dernière suppression par lot,&lt;br&gt;peut-être à cause d&apos;un logiciel antivirus.&lt;br&gt;&lt;br&gt;Désactivez temporairement votre antivirus ou ajoutez cette application&lt;br&gt;à sa liste blanche pour éviter les échecs de suppression ou les plantages.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="445"/>
        <source>Open Data Folder</source>
        <translation>Ouvrir le dossier de données</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="962"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="997"/>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
</context>
<context>
    <name>PicturePreviewDialog</name>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="22"/>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="34"/>
        <source>Chosen copy</source>
        <translation>Copie choisie</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="36"/>
        <source>Compared with</source>
        <translation>Comparée à</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="42"/>
        <source>Previous copy (Left arrow)</source>
        <translation>Copie précédente (flèche gauche)</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="50"/>
        <source>Next copy (Right arrow)</source>
        <translation>Copie suivante (flèche droite)</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="72"/>
        <source>Left and Right arrow keys show the other copies of the group.</source>
        <translation>Les touches fléchées gauche et droite affichent les autres copies du groupe.</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="130"/>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>PicturePreviewPane</name>
    <message>
        <source>Not verified</source>
        <translation>Non vérifié</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="104"/>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="105"/>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="106"/>
        <source>Modified</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="107"/>
        <source>Similarity</source>
        <translation>Similarité</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="112"/>
        <source>Remove this copy</source>
        <translation>Supprimer cette copie</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="182"/>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="193"/>
        <source>%1 file</source>
        <translation>Fichier %1</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="200"/>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="215"/>
        <source>This picture cannot be shown.</source>
        <translation>Impossible d&apos;afficher cette image.</translation>
    </message>
    <message>
        <source>Matched by</source>
        <translation>Correspondance</translation>
    </message>
</context>
<context>
    <name>ProblemListDialog</name>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="17"/>
        <source>Not Scanned</source>
        <translation>Non analysé</translation>
    </message>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="20"/>
        <source>These items were left out of the scan. Duplicates among them were not looked for.</source>
        <translation>Ces éléments ont été laissés de côté lors de l&apos;analyse. Aucun doublon n&apos;y a été recherché.</translation>
    </message>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="35"/>
        <source>Copy List</source>
        <translation>Copier la liste</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="57"/>
        <source>... and %n more</source>
        <translation>
            <numerusform>... et %n de plus</numerusform>
            <numerusform>... et %n de plus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemovalSummaryDialog</name>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="22"/>
        <source>Removal finished</source>
        <translation>Suppression terminée</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Item</source>
        <translation>Élément</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="48"/>
        <source>Removed</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="50"/>
        <source>Moved</source>
        <translation>Déplacé</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="51"/>
        <source>In the trash</source>
        <translation>Dans la corbeille</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="56"/>
        <source>Kept</source>
        <translation>Conservé</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="56"/>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="74"/>
        <source>Space freed: %1</source>
        <translation>Espace libéré : %1</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="93"/>
        <source>%n item(s) removed.</source>
        <translation>
            <numerusform>%n élément supprimé.</numerusform>
            <numerusform>%n éléments supprimés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="96"/>
        <source>%n item(s) stayed in place; the reasons are listed below.</source>
        <translation>
            <numerusform>%n élément est resté en place ; les raisons sont indiquées ci-dessous.</numerusform>
            <numerusform>%n éléments sont restés en place ; les raisons sont indiquées ci-dessous.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Replaced by a link</source>
        <translation>Remplacé par un lien</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Now reads %1</source>
        <translation>Lit désormais %1</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Each file replaced by a hard link is now another name of the copy that stays: both names share one set of permissions and one owner.</source>
        <translation>Chaque fichier remplacé par un lien physique est désormais un autre nom de la copie conservée : les deux noms partagent les mêmes permissions et le même propriétaire.</translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) replaced by a link.</source>
        <translation>
            <numerusform>%n élément remplacé par un lien.</numerusform>
            <numerusform>%n éléments remplacés par des liens.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResultForm</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>non vérifié</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="52"/>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="62"/>
        <source>Scan Results</source>
        <translation>Résultats de l&apos;analyse</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="82"/>
        <source>Search by name</source>
        <translation>Rechercher par nom</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="98"/>
        <source>Sort by</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="106"/>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="111"/>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="116"/>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="121"/>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="126"/>
        <source>Selected</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="153"/>
        <source>Loading results...</source>
        <translation>Chargement des résultats...</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="225"/>
        <location filename="../../src/results/ResultForm.cpp" line="619"/>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="238"/>
        <location filename="../../src/results/ResultForm.ui" line="716"/>
        <location filename="../../src/results/ResultForm.cpp" line="73"/>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="251"/>
        <location filename="../../src/results/ResultForm.ui" line="759"/>
        <location filename="../../src/results/ResultForm.cpp" line="75"/>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="264"/>
        <location filename="../../src/results/ResultForm.ui" line="802"/>
        <location filename="../../src/results/ResultForm.cpp" line="77"/>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="277"/>
        <location filename="../../src/results/ResultForm.ui" line="845"/>
        <location filename="../../src/results/ResultForm.cpp" line="79"/>
        <source>Videos</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="290"/>
        <location filename="../../src/results/ResultForm.ui" line="888"/>
        <location filename="../../src/results/ResultForm.cpp" line="81"/>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="303"/>
        <location filename="../../src/results/ResultForm.cpp" line="83"/>
        <source>Packages</source>
        <translation>Paquets</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="316"/>
        <location filename="../../src/results/ResultForm.ui" line="931"/>
        <location filename="../../src/results/ResultForm.cpp" line="85"/>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="469"/>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="479"/>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="489"/>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="502"/>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="515"/>
        <source>Flow</source>
        <translation>Mosaïque</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="546"/>
        <source>Thumbnail size</source>
        <translation>Taille des miniatures</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="661"/>
        <source>Duplicates by type</source>
        <translation>Doublons par type</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="972"/>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1013"/>
        <source>Can be freed</source>
        <translation>Libérable</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1102"/>
        <source>Selected:</source>
        <translation>Sélectionnés :</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1123"/>
        <source>Remove Selected</source>
        <translation>Supprimer la sélection</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="125"/>
        <source>If it keeps happening, write to &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</source>
        <translation>Si le problème persiste, écrivez à &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="128"/>
        <source>If it keeps happening, please send us the log files from &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</source>
        <translation>Si le problème persiste, envoyez-nous les fichiers journaux du dossier &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="332"/>
        <source>Select by Filename</source>
        <translation>Sélectionner par nom de fichier</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="333"/>
        <source>Select by Priority</source>
        <translation>Sélectionner par priorité</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="334"/>
        <source>Select Newest</source>
        <translation>Sélectionner les plus récents</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="335"/>
        <source>Select Oldest</source>
        <translation>Sélectionner les plus anciens</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="336"/>
        <source>Select high-quality</source>
        <translation>Sélectionner la haute qualité</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="337"/>
        <source>Select low-quality</source>
        <translation>Sélectionner la basse qualité</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="338"/>
        <source>Select high-resolution</source>
        <translation>Sélectionner la haute résolution</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="339"/>
        <source>Select low-resolution</source>
        <translation>Sélectionner la basse résolution</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="340"/>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="341"/>
        <source>Deselect</source>
        <translation>Désélectionner</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="358"/>
        <source>Show Only Duplicate Files</source>
        <translation>Afficher uniquement les doublons</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="359"/>
        <source>Show Only Selected Files</source>
        <translation>Afficher uniquement les fichiers sélectionnés</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="360"/>
        <source>Show All Files</source>
        <translation>Afficher tous les fichiers</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="380"/>
        <source>Similarity</source>
        <translation>Similarité</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="414"/>
        <location filename="../../src/results/ResultForm.cpp" line="1769"/>
        <source>Move to Recycle Bin</source>
        <translation>Déplacer vers la Corbeille</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="415"/>
        <location filename="../../src/results/ResultForm.cpp" line="1770"/>
        <source>Remove permanently</source>
        <translation>Supprimer définitivement</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="416"/>
        <location filename="../../src/results/ResultForm.cpp" line="1771"/>
        <source>Move to Folder</source>
        <translation>Déplacer vers un dossier</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="451"/>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="502"/>
        <source>Loading Data</source>
        <translation>Chargement des données</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="502"/>
        <source>Data is still loading, please wait...</source>
        <translation>Les données sont encore en cours de chargement, veuillez patienter...</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="635"/>
        <source>%n group(s)</source>
        <translation>
            <numerusform>%n groupe</numerusform>
            <numerusform>%n groupes</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="637"/>
        <source>loading…</source>
        <translation>chargement…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="841"/>
        <source>%1% similar</source>
        <translation>similaire à %1&#xa0;%</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="853"/>
        <source>%1 · %n copies · %2</source>
        <translation>
            <numerusform>%1 · %n copie · %2</numerusform>
            <numerusform>%1 · %n copies · %2</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="972"/>
        <source>Ignore Group</source>
        <translation>Ignorer le groupe</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="974"/>
        <source>Remove Selected Files of This Group</source>
        <translation>Supprimer les fichiers sélectionnés de ce groupe</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="990"/>
        <location filename="../../src/results/ResultForm.cpp" line="1050"/>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="991"/>
        <source>Hide from Results</source>
        <translation>Masquer dans les résultats</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="993"/>
        <source>Remove This File</source>
        <translation>Supprimer ce fichier</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1041"/>
        <source>Open Link Failed</source>
        <translation>Impossible d&apos;ouvrir le lien</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1041"/>
        <source>Failed to get the web link for the file.</source>
        <translation>Impossible d&apos;obtenir le lien web du fichier.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1050"/>
        <location filename="../../src/results/ResultForm.cpp" line="1456"/>
        <source>The file was not found.</source>
        <translation>Le fichier est introuvable.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1106"/>
        <location filename="../../src/results/ResultForm.cpp" line="1292"/>
        <location filename="../../src/results/ResultForm.cpp" line="1558"/>
        <location filename="../../src/results/ResultForm.cpp" line="1611"/>
        <location filename="../../src/results/ResultForm.cpp" line="1635"/>
        <source>Delete Failed</source>
        <translation>Échec de la suppression</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1107"/>
        <location filename="../../src/results/ResultForm.cpp" line="1612"/>
        <source>Failed to delete the file: %1</source>
        <translation>Impossible de supprimer le fichier : %1</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1166"/>
        <source>No selected</source>
        <translation>Aucune sélection</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1166"/>
        <source>The current group has no selected files.</source>
        <translation>Aucun fichier n&apos;est sélectionné dans le groupe actuel.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1207"/>
        <source>Selected files will be moved into the Cloud Drive&apos;s Recycle Bin, and they may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>Les fichiers sélectionnés seront déplacés dans la corbeille du stockage cloud ; ceux qui sont trop volumineux risquent d&apos;être supprimés définitivement. Voulez-vous vraiment les supprimer ?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1211"/>
        <source>The selected files will be permanently deleted, are you sure to delete?</source>
        <translation>Les fichiers sélectionnés seront supprimés définitivement. Voulez-vous vraiment les supprimer ?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1213"/>
        <source>Selected files will be moved into the Recycle Bin, and it may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>Les fichiers sélectionnés seront déplacés dans la Corbeille ; ceux qui sont trop volumineux risquent d&apos;être supprimés définitivement. Voulez-vous vraiment les supprimer ?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1256"/>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1256"/>
        <source>No Selected Files!</source>
        <translation>Aucun fichier sélectionné !</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1271"/>
        <source>In some groups every copy is selected, so nothing of them would be kept.

Remove every copy of those files too? With &quot;No&quot; one copy of each stays.</source>
        <translation>Dans certains groupes, toutes les copies sont sélectionnées : aucune ne serait conservée.

Supprimer aussi toutes les copies de ces fichiers ? Avec « Non », une copie de chacun est conservée.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1293"/>
        <source>Nothing was removed: the removal record %1 cannot be written (%2).</source>
        <translation>Rien n&apos;a été supprimé : impossible d&apos;écrire le journal des suppressions %1 (%2).</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1306"/>
        <location filename="../../src/results/ResultForm.cpp" line="1576"/>
        <source>Removing files</source>
        <translation>Suppression des fichiers</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1308"/>
        <location filename="../../src/results/ResultForm.cpp" line="1578"/>
        <source>Removing the selected files…</source>
        <translation>Suppression des fichiers sélectionnés…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1385"/>
        <source>the removal record cannot be written: %1</source>
        <translation>impossible d&apos;écrire le journal des suppressions : %1</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1440"/>
        <source>The cloud service did not remove it.</source>
        <translation>Le service cloud n&apos;a pas supprimé le fichier.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1444"/>
        <source>The file changed after the scan.</source>
        <translation>Le fichier a été modifié après l&apos;analyse.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1446"/>
        <source>No other copy of it would be left.</source>
        <translation>Aucune autre copie ne resterait.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1448"/>
        <source>Its content no longer matches the copy that stays.</source>
        <translation>Son contenu ne correspond plus à la copie conservée.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1450"/>
        <source>Not everything in it has a copy in the folder that stays.</source>
        <translation>Tout son contenu n&apos;a pas de copie dans le dossier conservé.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1452"/>
        <source>Every copy of its group was selected; this one stays.</source>
        <translation>Toutes les copies du groupe étaient sélectionnées ; celle-ci est conservée.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1459"/>
        <source>The item is not a file.</source>
        <translation>L&apos;élément n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1461"/>
        <source>The item is not a directory.</source>
        <translation>L&apos;élément n&apos;est pas un dossier.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1463"/>
        <source>Failed to move the file.</source>
        <translation>Impossible de déplacer le fichier.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1469"/>
        <source>Permission denied. Please check the file&apos;s access rights.</source>
        <translation>Accès refusé. Vérifiez les droits d&apos;accès du fichier.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1471"/>
        <source>The file is currently in use and cannot be deleted.</source>
        <translation>Le fichier est en cours d&apos;utilisation et ne peut pas être supprimé.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1473"/>
        <source>Failed to move the file to the recycle bin.</source>
        <translation>Impossible de déplacer le fichier vers la Corbeille.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1476"/>
        <source>An unknown error occurred while deleting the file.</source>
        <translation>Une erreur inconnue s&apos;est produite lors de la suppression du fichier.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1559"/>
        <source>Nothing was removed: every selected file is the last copy of its group.</source>
        <translation>Rien n&apos;a été supprimé : chaque fichier sélectionné est la dernière copie de son groupe.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1633"/>
        <source>Failed to delete the files. </source>
        <translation>Impossible de supprimer les fichiers. </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1697"/>
        <source>Incomplete scan</source>
        <translation>Analyse incomplète</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1698"/>
        <source>This scan could not complete the image matching process due to &lt;br&gt;memory and disk space limitations. Please delete duplicate files&lt;br&gt;or select fewer folders and try again. Ensure at least 1GB of &lt;br&gt;memory and 1GB of free space on the system drive is available. &lt;br&gt;</source>
        <translation>Cette analyse n&apos;a pas pu terminer la comparaison des images par manque &lt;br&gt;de mémoire et d&apos;espace disque. Supprimez des doublons&lt;br&gt;ou sélectionnez moins de dossiers, puis réessayez. Vérifiez qu&apos;au moins 1 Go de &lt;br&gt;mémoire et 1 Go d&apos;espace libre sont disponibles sur le lecteur système. &lt;br&gt;</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Hard Link</source>
        <translation>Remplacer par un lien physique</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Reflink (Copy-on-Write)</source>
        <translation>Remplacer par un reflink (copie sur écriture)</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Symbolic Link</source>
        <translation>Remplacer par un lien symbolique</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by links…</source>
        <translation>Remplacer par des liens…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>A folder is not replaced by a link; only files are.</source>
        <translation>Un dossier n’est pas remplacé par un lien ; seuls les fichiers le sont.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>No copy that stays is on the same drive, as a hard link needs.</source>
        <translation>Aucune copie conservée n’est sur le même disque, comme l’exige un lien physique.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>No copy that stays is on the same drive, as a reflink needs.</source>
        <translation>Aucune copie conservée n’est sur le même disque, comme l’exige un reflink.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>The file system cannot clone files (reflink).</source>
        <translation>Le système de fichiers ne peut pas cloner de fichiers (reflink).</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>The copy that stays changed while the link was made.</source>
        <translation>La copie conservée a changé pendant la création du lien.</translation>
    </message>
    <message>
        <source>Export as CSV…</source>
        <translation>Exporter en CSV…</translation>
    </message>
    <message>
        <source>Write every group as a table (CSV) for spreadsheets and scripts</source>
        <translation>Écrire tous les groupes dans un tableau (CSV) pour les tableurs et les scripts</translation>
    </message>
</context>
<context>
    <name>ScanConfigCheck</name>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="48"/>
        <source>The minimum file size %1 KB is outside %2 to %3 KB.</source>
        <translation>La taille minimale de fichier %1 Ko est hors de l&apos;intervalle de %2 à %3 Ko.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="51"/>
        <source>The maximum file size %1 MB is outside %2 to %3 MB.</source>
        <translation>La taille maximale de fichier %1 Mo est hors de l&apos;intervalle de %2 à %3 Mo.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="60"/>
        <source>The minimum file size %1 KB is not below the maximum file size %2 MB, so no file would be scanned.</source>
        <translation>La taille minimale %1 Ko n&apos;est pas inférieure à la taille maximale %2 Mo : aucun fichier ne serait analysé.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="69"/>
        <source>The similarity threshold %1% is outside %2% to %3%.</source>
        <translation>Le seuil de similarité %1 % est hors de l&apos;intervalle de %2 % à %3 %.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="74"/>
        <source>The feature similarity threshold %1% is outside %2% to %3%.</source>
        <translation>Le seuil de similarité des caractéristiques %1 % est hors de l&apos;intervalle de %2 % à %3 %.</translation>
    </message>
</context>
<context>
    <name>Selection</name>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="20"/>
        <source>Scan method</source>
        <translation>Méthode d&apos;analyse</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="26"/>
        <source>Randomly read parts of the file for comparison to improve scanning efficiency</source>
        <translation>Comparer des parties de chaque fichier prises au hasard pour analyser plus vite</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="33"/>
        <source>Read the entire file contents to improve accuracy</source>
        <translation>Lire tout le contenu du fichier pour plus de précision</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="40"/>
        <source>Files with the same name and size</source>
        <translation>Fichiers de même nom et de même taille</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="50"/>
        <source>Select duplicates for removal following preset rules below</source>
        <translation>Sélectionner les doublons à supprimer selon les règles ci-dessous</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="56"/>
        <source>Select newest duplicates for removal</source>
        <translation>Sélectionner les doublons les plus récents</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="63"/>
        <source>Select oldest duplicates for removal</source>
        <translation>Sélectionner les doublons les plus anciens</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="70"/>
        <source>Select duplicates for removal by filename</source>
        <translation>Sélectionner les doublons d&apos;après le nom de fichier</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="77"/>
        <source>Select duplicates for removal from prioritized location</source>
        <translation>Sélectionner les doublons des emplacements prioritaires</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="117"/>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="122"/>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="132"/>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="139"/>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="163"/>
        <source>The larger the value, the higher priority to delete. Double click to change the value and it&apos;s priority.</source>
        <translation>Plus la valeur est élevée, plus la priorité de suppression est haute. Double-cliquez sur la valeur pour changer la priorité.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="179"/>
        <source>Scanning duplicate directories</source>
        <translation>Rechercher aussi les dossiers en double</translation>
    </message>
</context>
<context>
    <name>TCloudFolderDialog</name>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="49"/>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="53"/>
        <source>Check the folders to scan in %1. A checked folder includes everything inside it.</source>
        <translation>Cochez les dossiers à analyser dans %1. Un dossier coché inclut tout ce qu&apos;il contient.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="69"/>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="169"/>
        <source>Network Request Error</source>
        <translation>Erreur de requête réseau</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="170"/>
        <source>The network request failed. Please log in again to re-authorize your account.</source>
        <translation>La requête réseau a échoué. Reconnectez-vous pour autoriser à nouveau votre compte.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="179"/>
        <source>Loading folders…</source>
        <translation>Chargement des dossiers…</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="179"/>
        <source>%n folder(s) chosen</source>
        <translation>
            <numerusform>%n dossier sélectionné</numerusform>
            <numerusform>%n dossiers sélectionnés</numerusform>
        </translation>
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
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Hide from results</source>
        <translation>Masquer des résultats</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="83"/>
        <source>%n copies</source>
        <translation>
            <numerusform>%n copie</numerusform>
            <numerusform>%n copies</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="85"/>
        <source>%n selected</source>
        <translation>
            <numerusform>%n sélectionnée</numerusform>
            <numerusform>%n sélectionnées</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="149"/>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="149"/>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="151"/>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="153"/>
        <source>Modified</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>In a protected folder: this copy is always kept and cannot be selected.</source>
        <translation>Dans un dossier protégé : cette copie est toujours conservée et ne peut pas être sélectionnée.</translation>
    </message>
</context>
<context>
    <name>TOpenSaveThread</name>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="223"/>
        <source>The project file could not be opened.</source>
        <translation>Le fichier de projet n&apos;a pas pu être ouvert.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="225"/>
        <source>The project file is damaged or incomplete.</source>
        <translation>Le fichier de projet est endommagé ou incomplet.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="227"/>
        <source>This file is not a project file of this program.</source>
        <translation>Ce fichier n&apos;est pas un fichier de projet de ce programme.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="229"/>
        <source>The project file contains invalid data and was not opened.</source>
        <translation>Le fichier de projet contient des données non valides et n&apos;a pas été ouvert.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="231"/>
        <source>None of the duplicate groups in this project exist any more.</source>
        <translation>Aucun des groupes de doublons de ce projet n&apos;existe encore.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="233"/>
        <source>The project file could not be saved.</source>
        <translation>Le fichier de projet n&apos;a pas pu être enregistré.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="235"/>
        <source>The operation was cancelled.</source>
        <translation>L&apos;opération a été annulée.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="237"/>
        <source>Unknown error.</source>
        <translation>Erreur inconnue.</translation>
    </message>
</context>
<context>
    <name>TPieChart</name>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="189"/>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="191"/>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="193"/>
        <source>Musics</source>
        <translation>Musique</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="195"/>
        <source>Videos</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="197"/>
        <source>Folder</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="199"/>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
</context>
<context>
    <name>CListViewDelegate</name>
    <message>
        <source>Protected</source>
        <translation>Protégé</translation>
    </message>
    <message>
        <source>Protected: nothing in this folder is selected or removed. Click to lift the protection.</source>
        <translation>Protégé : rien dans ce dossier n'est sélectionné ni supprimé. Cliquez pour lever la protection.</translation>
    </message>
    <message>
        <source>Protect this folder: nothing in it will be selected or removed.</source>
        <translation>Protéger ce dossier : rien de ce qu'il contient ne sera sélectionné ni supprimé.</translation>
    </message>
</context>
<context>
    <name>ProtectedFolderList</name>
    <message>
        <source>Protected folders</source>
        <translation>Dossiers protégés</translation>
    </message>
    <message>
        <source>Nothing in these folders is ever selected or removed. Their copies still count as the ones that stay.</source>
        <translation>Rien dans ces dossiers n'est jamais sélectionné ni supprimé. Leurs copies comptent toujours comme celles qui restent.</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
</context>
</TS>
