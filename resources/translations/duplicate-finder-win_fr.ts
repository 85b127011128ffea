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
