<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>CustomProgressDialog</name>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="34"/>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="91"/>
        <source>Cancelling...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DFIgnoreListWidget</name>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="159"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="166"/>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="160"/>
        <source>The maximum file size cannot be less than the minimum file size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="167"/>
        <source>Please select the folder where the deleted files will be moved to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="221"/>
        <source>Select folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="231"/>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="239"/>
        <source>All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="242"/>
        <source>All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="245"/>
        <source>Select Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DFPreferencesDialog</name>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="14"/>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="39"/>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="44"/>
        <source>Duplicate files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="49"/>
        <source>Similar images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="62"/>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="85"/>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="95"/>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="90"/>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="91"/>
        <source>You cannot change settings of preferences while the scan is in progress.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DFSelectionWidget</name>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <source>The folder has been added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="179"/>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <source>%1 is not a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>%1 is added.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Genernal</name>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="20"/>
        <source>Enable similar images function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="27"/>
        <source>Similarity Comparison Algorithms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="36"/>
        <source>Smart Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="43"/>
        <source>Histogram Data Comparison (Quality First)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="50"/>
        <source>pHash Data Comparison (Speed First)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="69"/>
        <source>Histogram similarity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="102"/>
        <source>The basic algorithm detects similar images quickly but vaguely, the larger the value, the higher the similarty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="112"/>
        <source>Features similarity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="139"/>
        <source>The advanced algorithm detects similar images through feature points in the image. Using this algorithm, detecting simialr images takes more time, but the result will be more accurate. The larger the value, the higher the similarity.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="152"/>
        <source>No comparision between different types of images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="161"/>
        <source>Compare images with similar size and aspect ratio (within ratio)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="196"/>
        <source>Select similar images for removal following preset rules below </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="211"/>
        <source>Follow the duplicates removal rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="218"/>
        <source>Select high-resolution similar images for removal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="225"/>
        <source>Select low-resolution similar images for removal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="232"/>
        <source>Select high-quality similar images for removal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="239"/>
        <source>Select low-quality similar images for removal</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GroupListPage</name>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="35"/>
        <source>%1 copies, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="58"/>
        <source>Scan results</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupListPage.cpp" line="66"/>
        <source>%n group(s) of duplicates, %1 in all</source>
        <translation>
            <numerusform>%n group of duplicates, %1 in all</numerusform>
            <numerusform>%n groups of duplicates, %1 in all</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="75"/>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IgnoreList</name>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="25"/>
        <source>Remove method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="31"/>
        <source>Move to Recycle Bin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="38"/>
        <source>Remove permanently</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="45"/>
        <source>Move to Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="67"/>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="79"/>
        <source>Select minimum and maximum file size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="88"/>
        <source>Minimum file size </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="111"/>
        <source>KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="118"/>
        <source>Maximum file size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="141"/>
        <source>MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="166"/>
        <source>Ignore folders and files in the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="187"/>
        <source>Add folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="194"/>
        <source>Add files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="201"/>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="208"/>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="233"/>
        <source>Support or Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="239"/>
        <source>Separate extensions with comma, such as txt, avi, dll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="249"/>
        <source>Scan only file formats:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="259"/>
        <source>Ignore scanning file formats:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="272"/>
        <source>Ignore system hidden folders and files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="327"/>
        <source>Files scanned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="328"/>
        <source>Duplicates found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="329"/>
        <source>Size of duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="330"/>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="331"/>
        <source>Elapsed time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="378"/>
        <source>Local Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="401"/>
        <source>User Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="402"/>
        <source>Product FAQ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="403"/>
        <source>Feedback and Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="404"/>
        <source>Check for Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="405"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1130"/>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="406"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1148"/>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="418"/>
        <source>Show Log in Explorer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="420"/>
        <source>Open Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="421"/>
        <source>Save Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="422"/>
        <source>Show Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="461"/>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="474"/>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="482"/>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="488"/>
        <source>New Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="493"/>
        <source>Show results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="550"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="554"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="557"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>%n item was not added because it is not a folder:</numerusform>
            <numerusform>%n items were not added because they are not folders:</numerusform>
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
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="580"/>
        <source>%n folder(s) added</source>
        <translation>
            <numerusform>%n folder added</numerusform>
            <numerusform>%n folders added</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="610"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="693"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="614"/>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="627"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="824"/>
        <source>%1 and %2 could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="825"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n folder</numerusform>
            <numerusform>%n folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="825"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="827"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>%n folder could not be read.</numerusform>
            <numerusform>%n folders could not be read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="829"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>%n file could not be read.</numerusform>
            <numerusform>%n files could not be read.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="850"/>
        <source>Folders that could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="851"/>
        <source>Files that could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="852"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="854"/>
        <source>System folders not entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="862"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>%n link leading outside the chosen folders was not followed.</numerusform>
            <numerusform>%n links leading outside the chosen folders were not followed.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="869"/>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="878"/>
        <source>The chosen folder could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="879"/>
        <source>The chosen folders could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="881"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="882"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="901"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1004"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1057"/>
        <source>Open File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="902"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="905"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1017"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1056"/>
        <source>Save File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1070"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1098"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1198"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1131"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1149"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1183"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1186"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1184"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>Open Data Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="791"/>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProblemListDialog</name>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="17"/>
        <source>Not Scanned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="20"/>
        <source>These items were left out of the scan. Duplicates among them were not looked for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="35"/>
        <source>Copy List</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="57"/>
        <source>... and %n more</source>
        <translation>
            <numerusform>... and %n more</numerusform>
            <numerusform>... and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanConfigCheck</name>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="48"/>
        <source>The minimum file size %1 KB is outside %2 to %3 KB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="51"/>
        <source>The maximum file size %1 MB is outside %2 to %3 MB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="60"/>
        <source>The minimum file size %1 KB is not below the maximum file size %2 MB, so no file would be scanned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="69"/>
        <source>The similarity threshold %1% is outside %2% to %3%.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="74"/>
        <source>The feature similarity threshold %1% is outside %2% to %3%.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Selection</name>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="20"/>
        <source>Scan method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="26"/>
        <source>Randomly read parts of the file for comparison to improve scanning efficiency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="33"/>
        <source>Read the entire file contents to improve accuracy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="40"/>
        <source>Files with the same name and size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="50"/>
        <source>Select duplicates for removal following preset rules below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="56"/>
        <source>Select newest duplicates for removal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="63"/>
        <source>Select oldest duplicates for removal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="70"/>
        <source>Select duplicates for removal by filename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="77"/>
        <source>Select duplicates for removal from prioritized location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="117"/>
        <source>Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="122"/>
        <source>Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="132"/>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="139"/>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="163"/>
        <source>The larger the value, the higher priority to delete. Double click to change the value and it&apos;s priority.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="179"/>
        <source>Scanning duplicate directories</source>
        <translation type="unfinished"></translation>
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
