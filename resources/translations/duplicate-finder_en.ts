<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>CsvExportRun</name>
    <message>
        <source>Export Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table could not be written to %1:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export as CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MoveTargetDialog</name>
    <message>
        <source>Move to Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected items into this folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the folder structure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each item goes into the same sub-folders below the target as below the scanned folder that holds it, so that moved files keep their context. Without it, every item lands in the target itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
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
    <name>DFGeneralWidget</name>
    <message>
        <source>The robust comparison checks every uncertain pair by its key points itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowest similarity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The robust comparison shows a match only when the pictures are at least this similar.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DFIgnoreListWidget</name>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="191"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="199"/>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="192"/>
        <source>The maximum file size cannot be less than the minimum file size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="200"/>
        <source>Please select the folder where the deleted files will be moved to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="254"/>
        <source>Select folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="264"/>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="272"/>
        <source>All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="275"/>
        <source>All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="278"/>
        <source>Select Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="98"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="112"/>
        <source>Clear cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="99"/>
        <source>The cache is in use by a running scan. Try again when it has ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="111"/>
        <source>Content keys kept from earlier scans: %1</source>
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
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="97"/>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="98"/>
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
        <translation>The advanced algorithm detects similar images through feature points in the image. Using this algorithm, detecting similar images takes more time, but the result will be more accurate. The larger the value, the higher the similarity.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="152"/>
        <source>No comparision between different types of images</source>
        <translation>No comparison between different types of images</translation>
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
    <message>
        <source>Robust Comparison (Edited Copies)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also finds cropped, rotated, mirrored, grey and re-saved copies in any picture format.</source>
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
        <translation>Move to Trash</translation>
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
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by hard link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by reflink (copy-on-write clone)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by symbolic link</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="343"/>
        <source>Files scanned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="344"/>
        <source>Duplicates found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="345"/>
        <source>Size of duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="346"/>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="347"/>
        <source>Elapsed time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="395"/>
        <source>Local Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="415"/>
        <source>%1 (needs rclone)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>User Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="428"/>
        <source>Product FAQ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="429"/>
        <source>Feedback and Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="430"/>
        <source>Check for Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="431"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1373"/>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="432"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1393"/>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="444"/>
        <source>Show Log in Explorer</source>
        <translation>Show Log in the File Manager</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="447"/>
        <source>Open Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="448"/>
        <source>Save Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="449"/>
        <source>Show Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="488"/>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="501"/>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="509"/>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="515"/>
        <source>New Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="520"/>
        <source>Show results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="577"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="581"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="584"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>%n item was not added because it is not a folder:</numerusform>
            <numerusform>%n items were not added because they are not folders:</numerusform>
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
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="607"/>
        <source>%n folder(s) added</source>
        <translation>
            <numerusform>%n folder added</numerusform>
            <numerusform>%n folders added</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="644"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="874"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="648"/>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="663"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="670"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="731"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="739"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1182"/>
        <source>info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="664"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="732"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="670"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="739"/>
        <source>Multiple cloud accounts cannot be scanned at the same time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="697"/>
        <source>Sign in to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="698"/>
        <source>Finish signing in to %1 in your web browser. This window goes on by itself once you are through.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="792"/>
        <source>Sign-in Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="793"/>
        <source>The cloud account could not be signed in.

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="805"/>
        <source>Insufficient System Disk Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="806"/>
        <source>Thumbnail download was not completed. This may affect similar image detection results. Please free up some disk space and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="817"/>
        <source>If no browser window opened, open &lt;a href=&quot;%1&quot;&gt;this sign-in page&lt;/a&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1046"/>
        <source>%1 and %2 could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1047"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n folder</numerusform>
            <numerusform>%n folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1047"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1049"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>%n folder could not be read.</numerusform>
            <numerusform>%n folders could not be read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1051"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>%n file could not be read.</numerusform>
            <numerusform>%n files could not be read.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1072"/>
        <source>Folders that could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1073"/>
        <source>Files that could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1074"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1076"/>
        <source>System folders not entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1084"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>%n link leading outside the chosen folders was not followed.</numerusform>
            <numerusform>%n links leading outside the chosen folders were not followed.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1091"/>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1100"/>
        <source>The chosen folder could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1101"/>
        <source>The chosen folders could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1103"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1104"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1123"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1247"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1300"/>
        <source>Open File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1124"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1127"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1178"/>
        <source>Cloud Scan Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1179"/>
        <source>The cloud scan could not be completed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1183"/>
        <source>Thumbnail download was not completed. This may affect similar image detection results. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1260"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1299"/>
        <source>Save File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1313"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1341"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1460"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1374"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1394"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1449"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1444"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1435"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="445"/>
        <source>Open Data Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="962"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="997"/>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PicturePreviewDialog</name>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="22"/>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="34"/>
        <source>Chosen copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="36"/>
        <source>Compared with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="42"/>
        <source>Previous copy (Left arrow)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="50"/>
        <source>Next copy (Right arrow)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="72"/>
        <source>Left and Right arrow keys show the other copies of the group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="130"/>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PicturePreviewPane</name>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="104"/>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="105"/>
        <source>Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="106"/>
        <source>Modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="107"/>
        <source>Similarity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="112"/>
        <source>Remove this copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="182"/>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="193"/>
        <source>%1 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="200"/>
        <source>Loading…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="215"/>
        <source>This picture cannot be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matched by</source>
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
    <name>RemovalSummaryDialog</name>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="22"/>
        <source>Removal finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="48"/>
        <source>Removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="50"/>
        <source>Moved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="51"/>
        <source>In the trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="56"/>
        <source>Kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="56"/>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="74"/>
        <source>Space freed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="93"/>
        <source>%n item(s) removed.</source>
        <translation>
            <numerusform>%n item removed.</numerusform>
            <numerusform>%n items removed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="96"/>
        <source>%n item(s) stayed in place; the reasons are listed below.</source>
        <translation>
            <numerusform>%n item stayed in place; the reasons are listed below.</numerusform>
            <numerusform>%n items stayed in place; the reasons are listed below.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) were already gone.</source>
        <translation>
            <numerusform>%n item was already gone.</numerusform>
            <numerusform>%n items were already gone.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Replaced by a link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Now reads %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Each file replaced by a hard link is now another name of the copy that stays: both names share one set of permissions and one owner.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) replaced by a link.</source>
        <translation>
            <numerusform>%n item replaced by a link.</numerusform>
            <numerusform>%n items replaced by a link.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResultForm</name>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="52"/>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="62"/>
        <source>Scan Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="82"/>
        <source>Search by name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="98"/>
        <source>Sort by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="106"/>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="111"/>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="116"/>
        <source>Copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="121"/>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="126"/>
        <source>Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="153"/>
        <source>Loading results...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="225"/>
        <location filename="../../src/results/ResultForm.cpp" line="619"/>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="238"/>
        <location filename="../../src/results/ResultForm.ui" line="716"/>
        <location filename="../../src/results/ResultForm.cpp" line="73"/>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="251"/>
        <location filename="../../src/results/ResultForm.ui" line="759"/>
        <location filename="../../src/results/ResultForm.cpp" line="75"/>
        <source>Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="264"/>
        <location filename="../../src/results/ResultForm.ui" line="802"/>
        <location filename="../../src/results/ResultForm.cpp" line="77"/>
        <source>Music</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="277"/>
        <location filename="../../src/results/ResultForm.ui" line="845"/>
        <location filename="../../src/results/ResultForm.cpp" line="79"/>
        <source>Videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="290"/>
        <location filename="../../src/results/ResultForm.ui" line="888"/>
        <location filename="../../src/results/ResultForm.cpp" line="81"/>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="303"/>
        <location filename="../../src/results/ResultForm.cpp" line="83"/>
        <source>Packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="316"/>
        <location filename="../../src/results/ResultForm.ui" line="931"/>
        <location filename="../../src/results/ResultForm.cpp" line="85"/>
        <source>Others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="469"/>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="479"/>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="489"/>
        <source>List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="502"/>
        <source>Grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="515"/>
        <source>Flow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="546"/>
        <source>Thumbnail size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="661"/>
        <source>Duplicates by type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="972"/>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1013"/>
        <source>Can be freed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1102"/>
        <source>Selected:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1123"/>
        <source>Remove Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="125"/>
        <source>If it keeps happening, write to &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="128"/>
        <source>If it keeps happening, please send us the log files from &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="332"/>
        <source>Select by Filename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="333"/>
        <source>Select by Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="334"/>
        <source>Select Newest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="335"/>
        <source>Select Oldest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="336"/>
        <source>Select high-quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="337"/>
        <source>Select low-quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="338"/>
        <source>Select high-resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="339"/>
        <source>Select low-resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="340"/>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="341"/>
        <source>Deselect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="358"/>
        <source>Show Only Duplicate Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="359"/>
        <source>Show Only Selected Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="360"/>
        <source>Show All Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="380"/>
        <source>Similarity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="414"/>
        <location filename="../../src/results/ResultForm.cpp" line="1769"/>
        <source>Move to Recycle Bin</source>
        <translation>Move to Trash</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="415"/>
        <location filename="../../src/results/ResultForm.cpp" line="1770"/>
        <source>Remove permanently</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="416"/>
        <location filename="../../src/results/ResultForm.cpp" line="1771"/>
        <source>Move to Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="451"/>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="502"/>
        <source>Loading Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="502"/>
        <source>Data is still loading, please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="635"/>
        <source>%n group(s)</source>
        <translation>
            <numerusform>%n group</numerusform>
            <numerusform>%n groups</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="637"/>
        <source>loading…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="841"/>
        <source>%1% similar</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="853"/>
        <source>%1 · %n copies · %2</source>
        <translation>
            <numerusform>%1 · %n copy · %2</numerusform>
            <numerusform>%1 · %n copies · %2</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="972"/>
        <source>Ignore Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="974"/>
        <source>Remove Selected Files of This Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="990"/>
        <location filename="../../src/results/ResultForm.cpp" line="1050"/>
        <source>Show in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="991"/>
        <source>Hide from Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="993"/>
        <source>Remove This File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1041"/>
        <source>Open Link Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1041"/>
        <source>Failed to get the web link for the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1050"/>
        <location filename="../../src/results/ResultForm.cpp" line="1456"/>
        <source>The file was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1106"/>
        <location filename="../../src/results/ResultForm.cpp" line="1292"/>
        <location filename="../../src/results/ResultForm.cpp" line="1558"/>
        <location filename="../../src/results/ResultForm.cpp" line="1611"/>
        <location filename="../../src/results/ResultForm.cpp" line="1635"/>
        <source>Delete Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1107"/>
        <location filename="../../src/results/ResultForm.cpp" line="1612"/>
        <source>Failed to delete the file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1166"/>
        <source>No selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1166"/>
        <source>The current group has no selected files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1207"/>
        <source>Selected files will be moved into the Cloud Drive&apos;s Recycle Bin, and they may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>The selected files will be moved to the cloud drive&apos;s trash. Are you sure you want to remove them?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1211"/>
        <source>The selected files will be permanently deleted, are you sure to delete?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1213"/>
        <source>Selected files will be moved into the Recycle Bin, and it may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>The selected files will be moved to the Trash. Are you sure you want to remove them?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1256"/>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1256"/>
        <source>No Selected Files!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1271"/>
        <source>In some groups every copy is selected, so nothing of them would be kept.

Remove every copy of those files too? With &quot;No&quot; one copy of each stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1293"/>
        <source>Nothing was removed: the removal record %1 cannot be written (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1306"/>
        <location filename="../../src/results/ResultForm.cpp" line="1576"/>
        <source>Removing files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1308"/>
        <location filename="../../src/results/ResultForm.cpp" line="1578"/>
        <source>Removing the selected files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1385"/>
        <source>the removal record cannot be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1440"/>
        <source>The cloud service did not remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1444"/>
        <source>The file changed after the scan.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1446"/>
        <source>No other copy of it would be left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1448"/>
        <source>Its content no longer matches the copy that stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1450"/>
        <source>Not everything in it has a copy in the folder that stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1452"/>
        <source>Every copy of its group was selected; this one stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1459"/>
        <source>The item is not a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1461"/>
        <source>The item is not a directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1463"/>
        <source>Failed to move the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1469"/>
        <source>Permission denied. Please check the file&apos;s access rights.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1471"/>
        <source>The file is currently in use and cannot be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1473"/>
        <source>Failed to move the file to the recycle bin.</source>
        <translation>Failed to move the file to the Trash.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1476"/>
        <source>An unknown error occurred while deleting the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1559"/>
        <source>Nothing was removed: every selected file is the last copy of its group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1633"/>
        <source>Failed to delete the files. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1697"/>
        <source>Incomplete scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1698"/>
        <source>This scan could not complete the image matching process due to &lt;br&gt;memory and disk space limitations. Please delete duplicate files&lt;br&gt;or select fewer folders and try again. Ensure at least 1GB of &lt;br&gt;memory and 1GB of free space on the system drive is available. &lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n item(s), %1.</source>
        <translation>
            <numerusform>%n item, %1.</numerusform>
            <numerusform>%n items, %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected file(s) differ in content from every copy that stays: they are similar pictures or files that only share a name. They were kept.

Remove them too?</source>
        <translation>
            <numerusform>%n selected file differs in content from every copy that stays: it is a similar picture or a file that only shares a name. It was kept.

Remove it too?</numerusform>
            <numerusform>%n selected files differ in content from every copy that stays: they are similar pictures or files that only share a name. They were kept.

Remove them too?</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Hard Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Reflink (Copy-on-Write)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Symbolic Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by links…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>A folder is not replaced by a link; only files are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>No copy that stays is on the same drive, as a hard link needs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>No copy that stays is on the same drive, as a reflink needs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>The file system cannot clone files (reflink).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>The copy that stays changed while the link was made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export as CSV…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write every group as a table (CSV) for spreadsheets and scripts</source>
        <translation type="unfinished"></translation>
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
        <translation>The larger the value, the higher the priority to delete. Double click to change the value and its priority.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="179"/>
        <source>Scanning duplicate directories</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TCloudFolderDialog</name>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="49"/>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="53"/>
        <source>Check the folders to scan in %1. A checked folder includes everything inside it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="69"/>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="169"/>
        <source>Network Request Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="170"/>
        <source>The network request failed. Please log in again to re-authorize your account.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="179"/>
        <source>Loading folders…</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="179"/>
        <source>%n folder(s) chosen</source>
        <translation>
            <numerusform>%n folder chosen</numerusform>
            <numerusform>%n folders chosen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TImageItemDelegate</name>
    <message>
        <location filename="../../src/results/TImageItemDelegate.cpp" line="204"/>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TImageModel</name>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="83"/>
        <source>%n copies</source>
        <translation>
            <numerusform>%n copy</numerusform>
            <numerusform>%n copies</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="85"/>
        <source>%n selected</source>
        <translation>
            <numerusform>%n selected</numerusform>
            <numerusform>%n selected</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="149"/>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="149"/>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="151"/>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="153"/>
        <source>Modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In a protected folder: this copy is always kept and cannot be selected.</source>
        <translation>In a protected folder: this copy is always kept and cannot be selected.</translation>
    </message>
</context>
<context>
    <name>TOpenSaveThread</name>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="223"/>
        <source>The project file could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="225"/>
        <source>The project file is damaged or incomplete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="227"/>
        <source>This file is not a project file of this program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="229"/>
        <source>The project file contains invalid data and was not opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="231"/>
        <source>None of the duplicate groups in this project exist any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="233"/>
        <source>The project file could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="235"/>
        <source>The operation was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="237"/>
        <source>Unknown error.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TPieChart</name>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="189"/>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="191"/>
        <source>Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="193"/>
        <source>Musics</source>
        <translation>Music</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="195"/>
        <source>Videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="197"/>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="199"/>
        <source>Others</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CListViewDelegate</name>
    <message>
        <source>Protected</source>
        <translation>Protected</translation>
    </message>
    <message>
        <source>Protected: nothing in this folder is selected or removed. Click to lift the protection.</source>
        <translation>Protected: nothing in this folder is selected or removed. Click to lift the protection.</translation>
    </message>
    <message>
        <source>Protect this folder: nothing in it will be selected or removed.</source>
        <translation>Protect this folder: nothing in it will be selected or removed.</translation>
    </message>
</context>
<context>
    <name>ProtectedFolderList</name>
    <message>
        <source>Protected folders</source>
        <translation>Protected folders</translation>
    </message>
    <message>
        <source>Nothing in these folders is ever selected or removed. Their copies still count as the ones that stay.</source>
        <translation>Nothing in these folders is ever selected or removed. Their copies still count as the ones that stay.</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Add folder</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Select Folder</translation>
    </message>
</context>
</TS>
