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
    <name>MainWindow</name>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="333"/>
        <source>Files scanned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="334"/>
        <source>Duplicates found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="335"/>
        <source>Size of duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="336"/>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="337"/>
        <source>Elapsed time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="385"/>
        <source>Local Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="408"/>
        <source>User Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="409"/>
        <source>Product FAQ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="410"/>
        <source>Feedback and Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="411"/>
        <source>Check for Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="412"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1132"/>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="413"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1150"/>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="425"/>
        <source>Show Log in Explorer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>Open Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="428"/>
        <source>Save Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="429"/>
        <source>Show Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="468"/>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="481"/>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="489"/>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="495"/>
        <source>New Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="500"/>
        <source>Show results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="557"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="561"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="564"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>%n item was not added because it is not a folder:</numerusform>
            <numerusform>%n items were not added because they are not folders:</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="566"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="616"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="633"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="699"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1072"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1099"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1209"/>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="587"/>
        <source>%n folder(s) added</source>
        <translation>
            <numerusform>%n folder added</numerusform>
            <numerusform>%n folders added</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="617"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="700"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="621"/>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="634"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="831"/>
        <source>%1 and %2 could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="832"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n folder</numerusform>
            <numerusform>%n folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="832"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="834"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>%n folder could not be read.</numerusform>
            <numerusform>%n folders could not be read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="836"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>%n file could not be read.</numerusform>
            <numerusform>%n files could not be read.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="857"/>
        <source>Folders that could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="858"/>
        <source>Files that could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="859"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="861"/>
        <source>System folders not entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="869"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>%n link leading outside the chosen folders was not followed.</numerusform>
            <numerusform>%n links leading outside the chosen folders were not followed.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="876"/>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="885"/>
        <source>The chosen folder could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="886"/>
        <source>The chosen folders could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="888"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="889"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="908"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1006"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1059"/>
        <source>Open File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="909"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="912"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1019"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1058"/>
        <source>Save File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1072"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1100"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1210"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1133"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1151"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1199"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1194"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1185"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
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
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="30"/>
        <source>Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="30"/>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="45"/>
        <source>Removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="46"/>
        <source>Moved to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="47"/>
        <source>In the trash: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="52"/>
        <source>Kept: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="53"/>
        <source>Failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="67"/>
        <source>Space freed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="86"/>
        <source>%n item(s) removed.</source>
        <translation>
            <numerusform>%n item removed.</numerusform>
            <numerusform>%n items removed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="89"/>
        <source>%n item(s) stayed in place; the reasons are listed below.</source>
        <translation>
            <numerusform>%n item stayed in place; the reasons are listed below.</numerusform>
            <numerusform>%n items stayed in place; the reasons are listed below.</numerusform>
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
        <location filename="../../src/results/ResultForm.cpp" line="540"/>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="238"/>
        <location filename="../../src/results/ResultForm.ui" line="716"/>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="251"/>
        <location filename="../../src/results/ResultForm.ui" line="759"/>
        <source>Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="264"/>
        <location filename="../../src/results/ResultForm.ui" line="802"/>
        <source>Music</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="277"/>
        <location filename="../../src/results/ResultForm.ui" line="845"/>
        <source>Videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="290"/>
        <location filename="../../src/results/ResultForm.ui" line="888"/>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="303"/>
        <source>Packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="316"/>
        <location filename="../../src/results/ResultForm.ui" line="931"/>
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
        <location filename="../../src/results/ResultForm.cpp" line="80"/>
        <source>If it keeps happening, write to &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="83"/>
        <source>If it keeps happening, please send us the log files from &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="254"/>
        <source>Select by Filename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="255"/>
        <source>Select by Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="256"/>
        <source>Select Newest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="257"/>
        <source>Select Oldest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="258"/>
        <source>Select high-quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="259"/>
        <source>Select low-quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="260"/>
        <source>Select high-resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="261"/>
        <source>Select low-resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="262"/>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="263"/>
        <source>Deselect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="280"/>
        <source>Show Only Duplicate Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="281"/>
        <source>Show Only Selected Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="282"/>
        <source>Show All Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="302"/>
        <source>Similarity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="336"/>
        <location filename="../../src/results/ResultForm.cpp" line="1532"/>
        <source>Move to Recycle Bin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="337"/>
        <location filename="../../src/results/ResultForm.cpp" line="1533"/>
        <source>Remove permanently</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="338"/>
        <location filename="../../src/results/ResultForm.cpp" line="1534"/>
        <source>Move to Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="373"/>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="423"/>
        <source>Loading Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="423"/>
        <source>Data is still loading, please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="556"/>
        <source>%n group(s)</source>
        <translation>
            <numerusform>%n group</numerusform>
            <numerusform>%n groups</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="558"/>
        <source>loading…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="761"/>
        <source>%1% similar</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="774"/>
        <source>%1 · %n copies · %2</source>
        <translation>
            <numerusform>%1 · %n copy · %2</numerusform>
            <numerusform>%1 · %n copies · %2</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="888"/>
        <source>Ignore Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="890"/>
        <source>Remove Selected Files of This Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="906"/>
        <location filename="../../src/results/ResultForm.cpp" line="967"/>
        <source>Show in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="907"/>
        <source>Hide from Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="909"/>
        <source>Remove This File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="958"/>
        <source>Open Link Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="958"/>
        <source>Failed to get the web link for the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="967"/>
        <location filename="../../src/results/ResultForm.cpp" line="1349"/>
        <source>The file was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1019"/>
        <location filename="../../src/results/ResultForm.cpp" line="1202"/>
        <source>Delete Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1020"/>
        <source>Failed to delete the file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1084"/>
        <source>No selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1084"/>
        <source>The current group has no selected files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1123"/>
        <source>Selected files will be moved into the Cloud Drive&apos;s Recycle Bin, and they may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1127"/>
        <source>The selected files will be permanently deleted, are you sure to delete?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1129"/>
        <source>Selected files will be moved into the Recycle Bin, and it may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1172"/>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1172"/>
        <source>No Selected Files!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1181"/>
        <source>In some groups every copy is selected, so nothing of them would be kept.

Remove every copy of those files too? With &quot;No&quot; one copy of each stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1203"/>
        <source>Nothing was removed: the removal record %1 cannot be written (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1216"/>
        <source>Removing files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1218"/>
        <source>Removing the selected files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1293"/>
        <source>the removal record cannot be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1352"/>
        <source>The item is not a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1354"/>
        <source>The item is not a directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1356"/>
        <source>Failed to move the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1362"/>
        <source>Permission denied. Please check the file&apos;s access rights.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1364"/>
        <source>The file is currently in use and cannot be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1366"/>
        <source>Failed to move the file to the recycle bin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1369"/>
        <source>An unknown error occurred while deleting the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1460"/>
        <source>Incomplete scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1461"/>
        <source>This scan could not complete the image matching process due to &lt;br&gt;memory and disk space limitations. Please delete duplicate files&lt;br&gt;or select fewer folders and try again. Ensure at least 1GB of &lt;br&gt;memory and 1GB of free space on the system drive is available. &lt;br&gt;</source>
        <translation type="unfinished"></translation>
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
        <location filename="../../src/results/TImageModel.cpp" line="166"/>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="166"/>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="168"/>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="170"/>
        <source>Modified</source>
        <translation type="unfinished"></translation>
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
        <location filename="../../src/results/TPieChart.cpp" line="194"/>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="196"/>
        <source>Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="198"/>
        <source>Musics</source>
        <translation>Music</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="200"/>
        <source>Videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="202"/>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="204"/>
        <source>Others</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
