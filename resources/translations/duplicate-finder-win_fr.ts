<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
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
    <name>DFIgnoreListWidget</name>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="159"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="166"/>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="160"/>
        <source>The maximum file size cannot be less than the minimum file size.</source>
        <translation>La taille maximale de fichier ne peut pas être inférieure à la taille minimale.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="167"/>
        <source>Please select the folder where the deleted files will be moved to.</source>
        <translation>Veuillez sélectionner le dossier où les fichiers supprimés seront déplacés.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="221"/>
        <source>Select folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="231"/>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="239"/>
        <source>All Files (*.*)</source>
        <translation>Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="242"/>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="245"/>
        <source>Select Files</source>
        <translation>Sélectionner des fichiers</translation>
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
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="90"/>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="91"/>
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
</context>
<context>
    <name>GroupListPage</name>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="35"/>
        <source>%1 copies, %2</source>
        <translation>%1 copies, %2</translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="58"/>
        <source>Scan results</source>
        <translation>Résultats de l&apos;analyse</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupListPage.cpp" line="66"/>
        <source>%n group(s) of duplicates, %1 in all</source>
        <translation>
            <numerusform>%n groupe de doublons, %1 au total</numerusform>
            <numerusform>%n groupes de doublons, %1 au total</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="75"/>
        <source>Back</source>
        <translation>Retour</translation>
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
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="327"/>
        <source>Files scanned</source>
        <translation>Fichiers analysés</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="328"/>
        <source>Duplicates found</source>
        <translation>Doublons trouvés</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="329"/>
        <source>Size of duplicates</source>
        <translation>Taille des doublons</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="330"/>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="331"/>
        <source>Elapsed time</source>
        <translation>Temps écoulé</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="378"/>
        <source>Local Computer</source>
        <translation>Ordinateur local</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="401"/>
        <source>User Guide</source>
        <translation>Guide de l&apos;utilisateur</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="402"/>
        <source>Product FAQ</source>
        <translation>Questions fréquentes</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="403"/>
        <source>Feedback and Support</source>
        <translation>Commentaires et assistance</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="404"/>
        <source>Check for Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="405"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1130"/>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="406"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1148"/>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="418"/>
        <source>Show Log in Explorer</source>
        <translation>Afficher le journal dans l&apos;explorateur</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="420"/>
        <source>Open Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="421"/>
        <source>Save Project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="422"/>
        <source>Show Results</source>
        <translation>Afficher les résultats</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="461"/>
        <source>Scan</source>
        <translation>Analyser</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="474"/>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="482"/>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="488"/>
        <source>New Scan</source>
        <translation>Nouvelle analyse</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="493"/>
        <source>Show results</source>
        <translation>Afficher les résultats</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="550"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation>« %1 » est un fichier, pas un dossier. Seuls les dossiers peuvent être analysés : ajoutez plutôt le dossier qui le contient.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="554"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation>« %1 » est introuvable. Il a peut-être été déplacé ou supprimé.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="557"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>%n élément n&apos;a pas été ajouté, car ce n&apos;est pas un dossier :</numerusform>
            <numerusform>%n éléments n&apos;ont pas été ajoutés, car ce ne sont pas des dossiers :</numerusform>
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
        <translation>Remarque</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="580"/>
        <source>%n folder(s) added</source>
        <translation>
            <numerusform>%n dossier ajouté</numerusform>
            <numerusform>%n dossiers ajoutés</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="610"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="693"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>Après l&apos;ajout de comptes et de dossiers cloud, les dossiers locaux ne peuvent plus être ajoutés.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="614"/>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="627"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>Après l&apos;ajout de dossiers locaux, les comptes cloud ne peuvent plus être ajoutés.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="824"/>
        <source>%1 and %2 could not be read.</source>
        <translation>%1 et %2 n&apos;ont pas pu être lus.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="825"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n dossier</numerusform>
            <numerusform>%n dossiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="825"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="827"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>%n dossier n&apos;a pas pu être lu.</numerusform>
            <numerusform>%n dossiers n&apos;ont pas pu être lus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="829"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>%n fichier n&apos;a pas pu être lu.</numerusform>
            <numerusform>%n fichiers n&apos;ont pas pu être lus.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="850"/>
        <source>Folders that could not be read</source>
        <translation>Dossiers qui n&apos;ont pas pu être lus</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="851"/>
        <source>Files that could not be read</source>
        <translation>Fichiers qui n&apos;ont pas pu être lus</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="852"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation>Liens non suivis, car ils mènent hors des dossiers choisis</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="854"/>
        <source>System folders not entered</source>
        <translation>Dossiers système non parcourus</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="862"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>%n lien menant hors des dossiers choisis n&apos;a pas été suivi.</numerusform>
            <numerusform>%n liens menant hors des dossiers choisis n&apos;ont pas été suivis.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="869"/>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="878"/>
        <source>The chosen folder could not be read.</source>
        <translation>Le dossier choisi n&apos;a pas pu être lu.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="879"/>
        <source>The chosen folders could not be read.</source>
        <translation>Les dossiers choisis n&apos;ont pas pu être lus.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="881"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation>Vérifiez qu&apos;il existe toujours et que vous avez le droit de l&apos;ouvrir.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="882"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation>Vérifiez qu&apos;ils existent toujours et que vous avez le droit de les ouvrir.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="901"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1004"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1057"/>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="902"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation>« %1 » est un dossier, pas un fichier de projet. Pour l&apos;analyser, ajoutez-le avec le bouton +.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="905"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation>Le fichier de projet « %1 » n&apos;existe pas.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1017"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1056"/>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1070"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>Les résultats de l&apos;analyse du cloud ne peuvent pas être enregistrés.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1098"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1198"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>Les résultats de l&apos;analyse actuelle n&apos;ont pas été enregistrés. Voulez-vous enregistrer le fichier ?</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1131"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;Version %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1149"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>La nouvelle langue sera appliquée au prochain démarrage du programme.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1183"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>Fermeture anormale détectée lors de la dernière suppression</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1186"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Éléments traités avant l’interruption : %1 sur %2.&lt;br&gt;Le journal des suppressions indique chacun d’eux et où il est allé :&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1184"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>Le programme s&apos;est fermé de façon inattendue lors de la dernière suppression par lot,&lt;br&gt;peut-être à cause d&apos;un logiciel antivirus.&lt;br&gt;&lt;br&gt;Désactivez temporairement votre antivirus ou ajoutez cette application&lt;br&gt;à sa liste blanche pour éviter les échecs de suppression ou les plantages.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>Open Data Folder</source>
        <translation>Ouvrir le dossier de données</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="791"/>
        <source>Error</source>
        <translation>Erreur</translation>
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
    <name>TOpenSaveThread</name>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="144"/>
        <source>The project file could not be opened.</source>
        <translation>Le fichier de projet n&apos;a pas pu être ouvert.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="146"/>
        <source>The project file is damaged or incomplete.</source>
        <translation>Le fichier de projet est endommagé ou incomplet.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="148"/>
        <source>This file is not a project file of this program.</source>
        <translation>Ce fichier n&apos;est pas un fichier de projet de ce programme.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="150"/>
        <source>The project file contains invalid data and was not opened.</source>
        <translation>Le fichier de projet contient des données non valides et n&apos;a pas été ouvert.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="152"/>
        <source>None of the duplicate groups in this project exist any more.</source>
        <translation>Aucun des groupes de doublons de ce projet n&apos;existe encore.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="154"/>
        <source>The project file could not be saved.</source>
        <translation>Le fichier de projet n&apos;a pas pu être enregistré.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="156"/>
        <source>The operation was cancelled.</source>
        <translation>L&apos;opération a été annulée.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="158"/>
        <source>Unknown error.</source>
        <translation>Erreur inconnue.</translation>
    </message>
</context>
</TS>
