<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>CustomProgressDialog</name>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="34"/>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="91"/>
        <source>Cancelling...</source>
        <translation>キャンセルしています...</translation>
    </message>
</context>
<context>
    <name>GroupListPage</name>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="35"/>
        <source>%1 copies, %2</source>
        <translation>%1 個のコピー、%2</translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="58"/>
        <source>Scan results</source>
        <translation>スキャン結果</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupListPage.cpp" line="66"/>
        <source>%n group(s) of duplicates, %1 in all</source>
        <translation>
            <numerusform>%n 個の重複グループ、合計 %1</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="75"/>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="293"/>
        <source>Files scanned</source>
        <translation>スキャンしたファイル</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="294"/>
        <source>Duplicates found</source>
        <translation>見つかった重複</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="295"/>
        <source>Size of duplicates</source>
        <translation>重複のサイズ</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="296"/>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="297"/>
        <source>Elapsed time</source>
        <translation>経過時間</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="335"/>
        <source>Local Computer</source>
        <translation>ローカルコンピューター</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="358"/>
        <source>User Guide</source>
        <translation>ユーザーガイド</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="359"/>
        <source>Product FAQ</source>
        <translation>よくある質問</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="360"/>
        <source>Feedback and Support</source>
        <translation>フィードバックとサポート</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="361"/>
        <source>Check for Updates</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="362"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="903"/>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="363"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="921"/>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="375"/>
        <source>Show Log in Explorer</source>
        <translation>エクスプローラーでログを表示</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="377"/>
        <source>Open Project</source>
        <translation>プロジェクトを開く</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="378"/>
        <source>Save Project</source>
        <translation>プロジェクトを保存</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="379"/>
        <source>Show Results</source>
        <translation>結果を表示</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="418"/>
        <source>Scan</source>
        <translation>スキャン</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="431"/>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="439"/>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="445"/>
        <source>New Scan</source>
        <translation>新規スキャン</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="450"/>
        <source>Show results</source>
        <translation>結果を表示</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="498"/>
        <source>folders added</source>
        <translation>個のフォルダーを追加済み</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="527"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="544"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="598"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="836"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="867"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="970"/>
        <source>Note</source>
        <translation>注意</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="528"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="599"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>クラウドアカウントとフォルダーを追加した後は、ローカルフォルダーを追加できません。</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="532"/>
        <source>Select Folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="545"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>ローカルフォルダーを追加した後は、クラウドアカウントを追加できません。</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="794"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="858"/>
        <source>Open File</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="807"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="842"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="875"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="982"/>
        <source>Save File</source>
        <translation>ファイルを保存</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="836"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>クラウドドライブのスキャン結果は保存できません。</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="868"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="971"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>現在のスキャン結果は保存されていません。ファイルを保存しますか？</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="904"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;バージョン %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="922"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>新しい言語は次回プログラムを起動したときに有効になります。</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="956"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>前回の削除中に異常終了を検出しました</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="957"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>前回の一括削除中にプログラムが予期せず終了しました。&lt;br&gt;ウイルス対策ソフトウェアの干渉が原因の可能性があります。&lt;br&gt;&lt;br&gt;削除の失敗やクラッシュを避けるため、ウイルス対策ソフトを一時的に無効にするか、&lt;br&gt;このアプリケーションを許可リストに追加してください。</translation>
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
