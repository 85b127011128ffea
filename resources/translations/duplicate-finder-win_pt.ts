<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT">
<context>
    <name>CsvExportRun</name>
    <message>
        <source>Export Failed</source>
        <translation>Falha na exportação</translation>
    </message>
    <message>
        <source>The table could not be written to %1:
%2</source>
        <translation>Não foi possível escrever a tabela em %1:
%2</translation>
    </message>
    <message>
        <source>Export as CSV</source>
        <translation>Exportar como CSV</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>Tabelas CSV (*.csv)</translation>
    </message>
</context>
<context>
    <name>MoveTargetDialog</name>
    <message>
        <source>Move to Folder</source>
        <translation>Mover para pasta</translation>
    </message>
    <message>
        <source>Move the selected items into this folder:</source>
        <translation>Mover os itens selecionados para esta pasta:</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Escolha uma pasta</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Procurar…</translation>
    </message>
    <message>
        <source>Keep the folder structure</source>
        <translation>Manter a estrutura de pastas</translation>
    </message>
    <message>
        <source>Each item goes into the same sub-folders below the target as below the scanned folder that holds it, so that moved files keep their context. Without it, every item lands in the target itself.</source>
        <translation>Cada item vai para as mesmas subpastas no destino que tinha sob a pasta analisada que o contém, para que os ficheiros movidos mantenham o seu contexto. Sem isto, cada item fica diretamente no destino.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
    </message>
</context>
<context>
    <name>CustomProgressDialog</name>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="34"/>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <location filename="../../src/widgets/CustomProgressDialog.cpp" line="91"/>
        <source>Cancelling...</source>
        <translation>A cancelar...</translation>
    </message>
</context>
<context>
    <name>DFGeneralWidget</name>
    <message>
        <source>The robust comparison checks every uncertain pair by its key points itself.</source>
        <translation>A comparação robusta verifica ela própria cada par incerto pelos seus pontos característicos.</translation>
    </message>
    <message>
        <source>Lowest similarity</source>
        <translation>Semelhança mínima</translation>
    </message>
    <message>
        <source>The robust comparison shows a match only when the pictures are at least this similar.</source>
        <translation>A comparação robusta só mostra uma correspondência quando as imagens são pelo menos tão semelhantes.</translation>
    </message>
</context>
<context>
    <name>DFIgnoreListWidget</name>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="191"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="199"/>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="192"/>
        <source>The maximum file size cannot be less than the minimum file size.</source>
        <translation>O tamanho máximo de ficheiro não pode ser inferior ao tamanho mínimo.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="200"/>
        <source>Please select the folder where the deleted files will be moved to.</source>
        <translation>Selecione a pasta para onde os ficheiros eliminados serão movidos.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="254"/>
        <source>Select folder</source>
        <translation>Selecionar pasta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="264"/>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="272"/>
        <source>All Files (*.*)</source>
        <translation>Todos os ficheiros (*.*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="275"/>
        <source>All Files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="278"/>
        <source>Select Files</source>
        <translation>Selecionar ficheiros</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="98"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="112"/>
        <source>Clear cache</source>
        <translation>Limpar cache</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="99"/>
        <source>The cache is in use by a running scan. Try again when it has ended.</source>
        <translation>O cache está sendo usado por uma verificação em andamento. Tente novamente quando ela terminar.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="111"/>
        <source>Content keys kept from earlier scans: %1</source>
        <translation>Chaves de conteúdo guardadas de verificações anteriores: %1</translation>
    </message>
</context>
<context>
    <name>DFPreferencesDialog</name>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="14"/>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="39"/>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="44"/>
        <source>Duplicate files</source>
        <translation>Ficheiros duplicados</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="49"/>
        <source>Similar images</source>
        <translation>Imagens semelhantes</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="62"/>
        <source>Default</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="85"/>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Não é possível alterar as definições enquanto a análise está em curso.</translation>
    </message>
</context>
<context>
    <name>DFSelectionWidget</name>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <source>The folder has been added.</source>
        <translation>A pasta já foi adicionada.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="179"/>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <source>%1 is not a number.</source>
        <translation>%1 não é um número.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>%1 is added.</source>
        <translation>%1 já está atribuído.</translation>
    </message>
</context>
<context>
    <name>Genernal</name>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="20"/>
        <source>Enable similar images function</source>
        <translation>Ativar a procura de imagens semelhantes</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="27"/>
        <source>Similarity Comparison Algorithms</source>
        <translation>Algoritmos de comparação de semelhança</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="36"/>
        <source>Smart Selection</source>
        <translation>Seleção inteligente</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="43"/>
        <source>Histogram Data Comparison (Quality First)</source>
        <translation>Comparação de histogramas (qualidade primeiro)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="50"/>
        <source>pHash Data Comparison (Speed First)</source>
        <translation>Comparação pHash (velocidade primeiro)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="69"/>
        <source>Histogram similarity</source>
        <translation>Semelhança do histograma</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="102"/>
        <source>The basic algorithm detects similar images quickly but vaguely, the larger the value, the higher the similarty.</source>
        <translation>O algoritmo básico deteta imagens semelhantes rapidamente, mas de forma aproximada. Quanto maior o valor, maior a semelhança exigida.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="112"/>
        <source>Features similarity</source>
        <translation>Semelhança de características</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="139"/>
        <source>The advanced algorithm detects similar images through feature points in the image. Using this algorithm, detecting simialr images takes more time, but the result will be more accurate. The larger the value, the higher the similarity.</source>
        <translation>O algoritmo avançado deteta imagens semelhantes através de pontos característicos da imagem. A procura demora mais, mas o resultado é mais preciso. Quanto maior o valor, maior a semelhança exigida.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="152"/>
        <source>No comparision between different types of images</source>
        <translation>Não comparar imagens de tipos diferentes</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="161"/>
        <source>Compare images with similar size and aspect ratio (within ratio)</source>
        <translation>Comparar só imagens de tamanho e proporções semelhantes (até ao fator)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="196"/>
        <source>Select similar images for removal following preset rules below </source>
        <translation>Selecionar imagens semelhantes a remover segundo as regras abaixo</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="211"/>
        <source>Follow the duplicates removal rule</source>
        <translation>Seguir a regra dos duplicados</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="218"/>
        <source>Select high-resolution similar images for removal</source>
        <translation>Selecionar as imagens de alta resolução</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="225"/>
        <source>Select low-resolution similar images for removal</source>
        <translation>Selecionar as imagens de baixa resolução</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="232"/>
        <source>Select high-quality similar images for removal</source>
        <translation>Selecionar as imagens de alta qualidade</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="239"/>
        <source>Select low-quality similar images for removal</source>
        <translation>Selecionar as imagens de baixa qualidade</translation>
    </message>
    <message>
        <source>Robust Comparison (Edited Copies)</source>
        <translation>Comparação robusta (cópias editadas)</translation>
    </message>
    <message>
        <source>Also finds cropped, rotated, mirrored, grey and re-saved copies in any picture format.</source>
        <translation>Encontra também cópias recortadas, rodadas, espelhadas, em tons de cinzento e guardadas de novo, em qualquer formato de imagem.</translation>
    </message>
</context>
<context>
    <name>IgnoreList</name>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="25"/>
        <source>Remove method</source>
        <translation>Método de remoção</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="31"/>
        <source>Move to Recycle Bin</source>
        <translation>Mover para a reciclagem</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="38"/>
        <source>Remove permanently</source>
        <translation>Eliminar permanentemente</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="45"/>
        <source>Move to Folder</source>
        <translation>Mover para uma pasta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="67"/>
        <source>Browse...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="79"/>
        <source>Select minimum and maximum file size</source>
        <translation>Tamanho mínimo e máximo de ficheiro</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="88"/>
        <source>Minimum file size </source>
        <translation>Tamanho mínimo</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="111"/>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="118"/>
        <source>Maximum file size</source>
        <translation>Tamanho máximo</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="141"/>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="166"/>
        <source>Ignore folders and files in the list</source>
        <translation>Ignorar as pastas e ficheiros da lista</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="187"/>
        <source>Add folder</source>
        <translation>Adicionar pasta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="194"/>
        <source>Add files</source>
        <translation>Adicionar ficheiros</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="201"/>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="208"/>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="233"/>
        <source>Support or Ignore</source>
        <translation>Incluir ou ignorar</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="239"/>
        <source>Separate extensions with comma, such as txt, avi, dll</source>
        <translation>Separe as extensões com vírgulas, por exemplo txt, avi, dll</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="249"/>
        <source>Scan only file formats:</source>
        <translation>Analisar apenas estes formatos:</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="259"/>
        <source>Ignore scanning file formats:</source>
        <translation>Ignorar estes formatos:</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="272"/>
        <source>Ignore system hidden folders and files</source>
        <translation>Ignorar pastas e ficheiros ocultos ou do sistema</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by hard link</source>
        <translation>Substituir por link físico</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by reflink (copy-on-write clone)</source>
        <translation>Substituir por reflink (clone copy-on-write)</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by symbolic link</source>
        <translation>Substituir por link simbólico</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Looking for files…</source>
        <translation>A procurar ficheiros…</translation>
    </message>
    <message>
        <source>Comparing files of the same size…</source>
        <translation>A comparar ficheiros do mesmo tamanho…</translation>
    </message>
    <message>
        <source>Reading pictures…</source>
        <translation>A ler imagens…</translation>
    </message>
    <message>
        <source>Reading pictures %1</source>
        <translation>A ler imagens %1</translation>
    </message>
    <message>
        <source>Comparing pictures %1</source>
        <translation>A comparar imagens %1</translation>
    </message>
    <message>
        <source>Checking picture details %1</source>
        <translation>A verificar detalhes das imagens %1</translation>
    </message>
    <message>
        <source>Scan stopped – results are incomplete</source>
        <translation>Análise parada – os resultados estão incompletos</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Análise concluída</translation>
    </message>
    <message>
        <source>The scan was stopped before any files were compared.</source>
        <translation>A análise foi parada antes de comparar qualquer ficheiro.</translation>
    </message>
    <message>
        <source>No duplicates were found among the files compared before the stop.</source>
        <translation>Não foram encontrados duplicados entre os ficheiros comparados antes da paragem.</translation>
    </message>
    <message>
        <source>Only these file types are scanned: %1</source>
        <translation>Apenas estes tipos de ficheiro são analisados: %1</translation>
    </message>
    <message>
        <source>These file types are skipped: %1</source>
        <translation>Estes tipos de ficheiro são ignorados: %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="343"/>
        <source>Files scanned</source>
        <translation>Ficheiros analisados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="344"/>
        <source>Duplicates found</source>
        <translation>Duplicados encontrados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="345"/>
        <source>Size of duplicates</source>
        <translation>Tamanho dos duplicados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="346"/>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="347"/>
        <source>Elapsed time</source>
        <translation>Tempo decorrido</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="395"/>
        <source>Local Computer</source>
        <translation>Computador local</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="415"/>
        <source>%1 (needs rclone)</source>
        <translation>%1 (requer rclone)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>User Guide</source>
        <translation>Guia do utilizador</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="428"/>
        <source>Product FAQ</source>
        <translation>Perguntas frequentes</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="429"/>
        <source>Feedback and Support</source>
        <translation>Comentários e suporte</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="430"/>
        <source>Check for Updates</source>
        <translation>Procurar atualizações</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="431"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1373"/>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="432"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1393"/>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="444"/>
        <source>Show Log in Explorer</source>
        <translation>Mostrar registo no explorador</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="447"/>
        <source>Open Project</source>
        <translation>Abrir projeto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="448"/>
        <source>Save Project</source>
        <translation>Guardar projeto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="449"/>
        <source>Show Results</source>
        <translation>Mostrar resultados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="488"/>
        <source>Scan</source>
        <translation>Analisar</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="501"/>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="509"/>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="515"/>
        <source>New Scan</source>
        <translation>Nova análise</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="520"/>
        <source>Show results</source>
        <translation>Mostrar resultados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="577"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation>&quot;%1&quot; é um ficheiro, não uma pasta. Só é possível analisar pastas: adicione antes a pasta que o contém.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="581"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation>Não foi possível encontrar &quot;%1&quot;. Pode ter sido movido ou removido.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="584"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>%n item não foi adicionado porque não é uma pasta:</numerusform>
            <numerusform>%n itens não foram adicionados porque não são pastas:</numerusform>
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
            <numerusform>%n pasta adicionada</numerusform>
            <numerusform>%n pastas adicionadas</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="644"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="874"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>Depois de adicionar contas e pastas na nuvem, já não é possível adicionar pastas locais.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="648"/>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="663"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="670"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="731"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="739"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1182"/>
        <source>info</source>
        <translation>Informação</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="664"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="732"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>Depois de adicionar pastas locais, já não é possível adicionar contas na nuvem.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="670"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="739"/>
        <source>Multiple cloud accounts cannot be scanned at the same time.</source>
        <translation>Não é possível analisar várias contas na nuvem ao mesmo tempo.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="697"/>
        <source>Sign in to %1</source>
        <translation>Iniciar sessão em %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="698"/>
        <source>Finish signing in to %1 in your web browser. This window goes on by itself once you are through.</source>
        <translation>Conclua o início de sessão em %1 no seu navegador web. Esta janela continua sozinha quando terminar.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="792"/>
        <source>Sign-in Failed</source>
        <translation>Falha ao iniciar sessão</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="793"/>
        <source>The cloud account could not be signed in.

%1</source>
        <translation>Não foi possível iniciar sessão na conta na nuvem.

%1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="805"/>
        <source>Insufficient System Disk Space</source>
        <translation>Espaço insuficiente na unidade do sistema</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="806"/>
        <source>Thumbnail download was not completed. This may affect similar image detection results. Please free up some disk space and try again.</source>
        <translation>A transferência das miniaturas não foi concluída. Isto pode afetar os resultados da deteção de imagens semelhantes. Liberte espaço em disco e tente novamente.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="817"/>
        <source>If no browser window opened, open &lt;a href=&quot;%1&quot;&gt;this sign-in page&lt;/a&gt;.</source>
        <translation>Se nenhuma janela do navegador abriu, abra &lt;a href=&quot;%1&quot;&gt;esta página de início de sessão&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1046"/>
        <source>%1 and %2 could not be read.</source>
        <translation>Não foi possível ler %1 e %2.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1047"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n pasta</numerusform>
            <numerusform>%n pastas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1047"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n ficheiro</numerusform>
            <numerusform>%n ficheiros</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1049"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>Não foi possível ler %n pasta.</numerusform>
            <numerusform>Não foi possível ler %n pastas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1051"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>Não foi possível ler %n ficheiro.</numerusform>
            <numerusform>Não foi possível ler %n ficheiros.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1072"/>
        <source>Folders that could not be read</source>
        <translation>Pastas que não foi possível ler</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1073"/>
        <source>Files that could not be read</source>
        <translation>Ficheiros que não foi possível ler</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1074"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation>Ligações não seguidas porque levam para fora das pastas escolhidas</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1076"/>
        <source>System folders not entered</source>
        <translation>Pastas do sistema não percorridas</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1084"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>%n ligação para fora das pastas escolhidas não foi seguida.</numerusform>
            <numerusform>%n ligações para fora das pastas escolhidas não foram seguidas.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1091"/>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1100"/>
        <source>The chosen folder could not be read.</source>
        <translation>Não foi possível ler a pasta escolhida.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1101"/>
        <source>The chosen folders could not be read.</source>
        <translation>Não foi possível ler as pastas escolhidas.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1103"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation>Verifique se ainda existe e se tem permissão para a abrir.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1104"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation>Verifique se ainda existem e se tem permissão para as abrir.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1123"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1247"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1300"/>
        <source>Open File</source>
        <translation>Abrir ficheiro</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1124"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation>&quot;%1&quot; é uma pasta, não um ficheiro de projeto. Para a analisar, adicione-a com o botão +.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1127"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation>O ficheiro de projeto &quot;%1&quot; não existe.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1178"/>
        <source>Cloud Scan Failed</source>
        <translation>Falha na análise da nuvem</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1179"/>
        <source>The cloud scan could not be completed: %1</source>
        <translation>Não foi possível concluir a análise da nuvem: %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1183"/>
        <source>Thumbnail download was not completed. This may affect similar image detection results. </source>
        <translation>A transferência das miniaturas não foi concluída. Isto pode afetar os resultados da deteção de imagens semelhantes. </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1260"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1299"/>
        <source>Save File</source>
        <translation>Guardar ficheiro</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1313"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>Os resultados da análise da nuvem não podem ser guardados.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1341"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1460"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>Os resultados da análise atual não foram guardados. Pretende guardar o ficheiro?</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1374"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;Versão %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1394"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>O novo idioma será aplicado da próxima vez que o programa for iniciado.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1449"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>Foi detetado um encerramento anómalo durante a última eliminação</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1444"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Itens processados antes da interrupção: %1 de %2.&lt;br&gt;O registro de remoções lista cada um e para onde foi:&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1435"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>O programa terminou inesperadamente durante a última eliminação em lote,&lt;br&gt;possivelmente devido a interferência do antivírus.&lt;br&gt;&lt;br&gt;Desative temporariamente o antivírus ou adicione esta aplicação&lt;br&gt;à sua lista de permissões para evitar falhas de eliminação ou bloqueios.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="445"/>
        <source>Open Data Folder</source>
        <translation>Abrir pasta de dados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="962"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="997"/>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
</context>
<context>
    <name>PicturePreviewDialog</name>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="22"/>
        <source>Preview</source>
        <translation>Pré-visualização</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="34"/>
        <source>Chosen copy</source>
        <translation>Cópia escolhida</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="36"/>
        <source>Compared with</source>
        <translation>Comparada com</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="42"/>
        <source>Previous copy (Left arrow)</source>
        <translation>Cópia anterior (seta para a esquerda)</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="50"/>
        <source>Next copy (Right arrow)</source>
        <translation>Cópia seguinte (seta para a direita)</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="72"/>
        <source>Left and Right arrow keys show the other copies of the group.</source>
        <translation>As teclas de seta para a esquerda e para a direita mostram as outras cópias do grupo.</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="130"/>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>PicturePreviewPane</name>
    <message>
        <source>Not verified</source>
        <translation>Não verificado</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="104"/>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="105"/>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="106"/>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="107"/>
        <source>Similarity</source>
        <translation>Semelhança</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="112"/>
        <source>Remove this copy</source>
        <translation>Remover esta cópia</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="182"/>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="193"/>
        <source>%1 file</source>
        <translation>Ficheiro %1</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="200"/>
        <source>Loading…</source>
        <translation>A carregar…</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="215"/>
        <source>This picture cannot be shown.</source>
        <translation>Não é possível mostrar esta imagem.</translation>
    </message>
    <message>
        <source>Matched by</source>
        <translation>Correspondência</translation>
    </message>
</context>
<context>
    <name>ProblemListDialog</name>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="17"/>
        <source>Not Scanned</source>
        <translation>Não analisado</translation>
    </message>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="20"/>
        <source>These items were left out of the scan. Duplicates among them were not looked for.</source>
        <translation>Estes itens ficaram fora da análise. Não foram procurados duplicados entre eles.</translation>
    </message>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="35"/>
        <source>Copy List</source>
        <translation>Copiar lista</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="57"/>
        <source>... and %n more</source>
        <translation>
            <numerusform>... e mais %n</numerusform>
            <numerusform>... e mais %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemovalSummaryDialog</name>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="22"/>
        <source>Removal finished</source>
        <translation>Remoção concluída</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Item</source>
        <translation>Item</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="48"/>
        <source>Removed</source>
        <translation>Removido</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="50"/>
        <source>Moved</source>
        <translation>Movido</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="51"/>
        <source>In the trash</source>
        <translation>Na reciclagem</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="56"/>
        <source>Kept</source>
        <translation>Mantido</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="56"/>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="74"/>
        <source>Space freed: %1</source>
        <translation>Espaço libertado: %1</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="93"/>
        <source>%n item(s) removed.</source>
        <translation>
            <numerusform>%n item removido.</numerusform>
            <numerusform>%n itens removidos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="96"/>
        <source>%n item(s) stayed in place; the reasons are listed below.</source>
        <translation>
            <numerusform>%n item ficou no lugar; os motivos estão indicados abaixo.</numerusform>
            <numerusform>%n itens ficaram no lugar; os motivos estão indicados abaixo.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Replaced by a link</source>
        <translation>Substituído por link</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Now reads %1</source>
        <translation>Agora lê %1</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Each file replaced by a hard link is now another name of the copy that stays: both names share one set of permissions and one owner.</source>
        <translation>Cada arquivo substituído por um link físico agora é outro nome da cópia mantida: os dois nomes compartilham as mesmas permissões e o mesmo proprietário.</translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) replaced by a link.</source>
        <translation>
            <numerusform>%n item substituído por uma ligação.</numerusform>
            <numerusform>%n itens substituídos por ligações.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResultForm</name>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>não verificado</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="52"/>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="62"/>
        <source>Scan Results</source>
        <translation>Resultados da análise</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="82"/>
        <source>Search by name</source>
        <translation>Pesquisar por nome</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="98"/>
        <source>Sort by</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="106"/>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="111"/>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="116"/>
        <source>Copies</source>
        <translation>Cópias</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="121"/>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="126"/>
        <source>Selected</source>
        <translation>Seleção</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="153"/>
        <source>Loading results...</source>
        <translation>A carregar resultados...</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="225"/>
        <location filename="../../src/results/ResultForm.cpp" line="619"/>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="238"/>
        <location filename="../../src/results/ResultForm.ui" line="716"/>
        <location filename="../../src/results/ResultForm.cpp" line="73"/>
        <source>Images</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="251"/>
        <location filename="../../src/results/ResultForm.ui" line="759"/>
        <location filename="../../src/results/ResultForm.cpp" line="75"/>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="264"/>
        <location filename="../../src/results/ResultForm.ui" line="802"/>
        <location filename="../../src/results/ResultForm.cpp" line="77"/>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="277"/>
        <location filename="../../src/results/ResultForm.ui" line="845"/>
        <location filename="../../src/results/ResultForm.cpp" line="79"/>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="290"/>
        <location filename="../../src/results/ResultForm.ui" line="888"/>
        <location filename="../../src/results/ResultForm.cpp" line="81"/>
        <source>Folders</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="303"/>
        <location filename="../../src/results/ResultForm.cpp" line="83"/>
        <source>Packages</source>
        <translation>Pacotes</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="316"/>
        <location filename="../../src/results/ResultForm.ui" line="931"/>
        <location filename="../../src/results/ResultForm.cpp" line="85"/>
        <source>Others</source>
        <translation>Outros</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="469"/>
        <source>Select</source>
        <translation>Selecionar</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="479"/>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="489"/>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="502"/>
        <source>Grid</source>
        <translation>Grelha</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="515"/>
        <source>Flow</source>
        <translation>Mosaico</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="546"/>
        <source>Thumbnail size</source>
        <translation>Tamanho das miniaturas</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="661"/>
        <source>Duplicates by type</source>
        <translation>Duplicados por tipo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="972"/>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1013"/>
        <source>Can be freed</source>
        <translation>Pode ser libertado</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1102"/>
        <source>Selected:</source>
        <translation>Selecionados:</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1123"/>
        <source>Remove Selected</source>
        <translation>Remover selecionados</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="125"/>
        <source>If it keeps happening, write to &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</source>
        <translation>Se o problema persistir, escreva para &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="128"/>
        <source>If it keeps happening, please send us the log files from &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</source>
        <translation>Se o problema persistir, envie-nos os ficheiros de registo de &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="332"/>
        <source>Select by Filename</source>
        <translation>Selecionar por nome de ficheiro</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="333"/>
        <source>Select by Priority</source>
        <translation>Selecionar por prioridade</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="334"/>
        <source>Select Newest</source>
        <translation>Selecionar os mais recentes</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="335"/>
        <source>Select Oldest</source>
        <translation>Selecionar os mais antigos</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="336"/>
        <source>Select high-quality</source>
        <translation>Selecionar alta qualidade</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="337"/>
        <source>Select low-quality</source>
        <translation>Selecionar baixa qualidade</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="338"/>
        <source>Select high-resolution</source>
        <translation>Selecionar alta resolução</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="339"/>
        <source>Select low-resolution</source>
        <translation>Selecionar baixa resolução</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="340"/>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="341"/>
        <source>Deselect</source>
        <translation>Anular seleção</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="358"/>
        <source>Show Only Duplicate Files</source>
        <translation>Mostrar apenas ficheiros duplicados</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="359"/>
        <source>Show Only Selected Files</source>
        <translation>Mostrar apenas ficheiros selecionados</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="360"/>
        <source>Show All Files</source>
        <translation>Mostrar todos os ficheiros</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="380"/>
        <source>Similarity</source>
        <translation>Semelhança</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="414"/>
        <location filename="../../src/results/ResultForm.cpp" line="1769"/>
        <source>Move to Recycle Bin</source>
        <translation>Mover para a Reciclagem</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="415"/>
        <location filename="../../src/results/ResultForm.cpp" line="1770"/>
        <source>Remove permanently</source>
        <translation>Eliminar permanentemente</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="416"/>
        <location filename="../../src/results/ResultForm.cpp" line="1771"/>
        <source>Move to Folder</source>
        <translation>Mover para uma pasta</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="451"/>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="502"/>
        <source>Loading Data</source>
        <translation>A carregar dados</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="502"/>
        <source>Data is still loading, please wait...</source>
        <translation>Os dados ainda estão a ser carregados; aguarde...</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="635"/>
        <source>%n group(s)</source>
        <translation>
            <numerusform>%n grupo</numerusform>
            <numerusform>%n grupos</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="637"/>
        <source>loading…</source>
        <translation>a carregar…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="841"/>
        <source>%1% similar</source>
        <translation>%1% de semelhança</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="853"/>
        <source>%1 · %n copies · %2</source>
        <translation>
            <numerusform>%1 · %n cópia · %2</numerusform>
            <numerusform>%1 · %n cópias · %2</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="972"/>
        <source>Ignore Group</source>
        <translation>Ignorar grupo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="974"/>
        <source>Remove Selected Files of This Group</source>
        <translation>Remover os ficheiros selecionados deste grupo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="990"/>
        <location filename="../../src/results/ResultForm.cpp" line="1050"/>
        <source>Show in Folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="991"/>
        <source>Hide from Results</source>
        <translation>Ocultar dos resultados</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="993"/>
        <source>Remove This File</source>
        <translation>Remover este ficheiro</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1041"/>
        <source>Open Link Failed</source>
        <translation>Não foi possível abrir a ligação</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1041"/>
        <source>Failed to get the web link for the file.</source>
        <translation>Não foi possível obter a ligação web do ficheiro.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1050"/>
        <location filename="../../src/results/ResultForm.cpp" line="1456"/>
        <source>The file was not found.</source>
        <translation>O ficheiro não foi encontrado.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1106"/>
        <location filename="../../src/results/ResultForm.cpp" line="1292"/>
        <location filename="../../src/results/ResultForm.cpp" line="1558"/>
        <location filename="../../src/results/ResultForm.cpp" line="1611"/>
        <location filename="../../src/results/ResultForm.cpp" line="1635"/>
        <source>Delete Failed</source>
        <translation>Falha ao eliminar</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1107"/>
        <location filename="../../src/results/ResultForm.cpp" line="1612"/>
        <source>Failed to delete the file: %1</source>
        <translation>Não foi possível eliminar o ficheiro: %1</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1166"/>
        <source>No selected</source>
        <translation>Sem seleção</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1166"/>
        <source>The current group has no selected files.</source>
        <translation>O grupo atual não tem ficheiros selecionados.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1207"/>
        <source>Selected files will be moved into the Cloud Drive&apos;s Recycle Bin, and they may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>Os ficheiros selecionados serão movidos para a reciclagem da unidade na nuvem; os que forem demasiado grandes poderão ser eliminados permanentemente. Tem a certeza de que pretende eliminá-los?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1211"/>
        <source>The selected files will be permanently deleted, are you sure to delete?</source>
        <translation>Os ficheiros selecionados serão eliminados permanentemente. Tem a certeza de que pretende eliminá-los?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1213"/>
        <source>Selected files will be moved into the Recycle Bin, and it may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>Os ficheiros selecionados serão movidos para a Reciclagem; os que forem demasiado grandes poderão ser eliminados permanentemente. Tem a certeza de que pretende eliminá-los?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1256"/>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1256"/>
        <source>No Selected Files!</source>
        <translation>Nenhum ficheiro selecionado!</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1271"/>
        <source>In some groups every copy is selected, so nothing of them would be kept.

Remove every copy of those files too? With &quot;No&quot; one copy of each stays.</source>
        <translation>Em alguns grupos estão selecionadas todas as cópias, pelo que nenhuma seria mantida.

Remover também todas as cópias desses ficheiros? Com &quot;Não&quot;, fica uma cópia de cada um.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1293"/>
        <source>Nothing was removed: the removal record %1 cannot be written (%2).</source>
        <translation>Nada foi removido: não é possível escrever o registo de remoções %1 (%2).</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1306"/>
        <location filename="../../src/results/ResultForm.cpp" line="1576"/>
        <source>Removing files</source>
        <translation>A remover ficheiros</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1308"/>
        <location filename="../../src/results/ResultForm.cpp" line="1578"/>
        <source>Removing the selected files…</source>
        <translation>A remover os ficheiros selecionados…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1385"/>
        <source>the removal record cannot be written: %1</source>
        <translation>não é possível escrever o registo de remoções: %1</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1440"/>
        <source>The cloud service did not remove it.</source>
        <translation>O serviço na nuvem não removeu o ficheiro.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1444"/>
        <source>The file changed after the scan.</source>
        <translation>O ficheiro foi alterado após a análise.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1446"/>
        <source>No other copy of it would be left.</source>
        <translation>Não restaria nenhuma outra cópia.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1448"/>
        <source>Its content no longer matches the copy that stays.</source>
        <translation>O conteúdo já não coincide com a cópia que fica.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1450"/>
        <source>Not everything in it has a copy in the folder that stays.</source>
        <translation>Nem todo o conteúdo tem cópia na pasta que fica.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1452"/>
        <source>Every copy of its group was selected; this one stays.</source>
        <translation>Todas as cópias do grupo estavam selecionadas; esta fica.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1459"/>
        <source>The item is not a file.</source>
        <translation>O item não é um ficheiro.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1461"/>
        <source>The item is not a directory.</source>
        <translation>O item não é uma pasta.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1463"/>
        <source>Failed to move the file.</source>
        <translation>Não foi possível mover o ficheiro.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1469"/>
        <source>Permission denied. Please check the file&apos;s access rights.</source>
        <translation>Permissão negada. Verifique as permissões de acesso do ficheiro.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1471"/>
        <source>The file is currently in use and cannot be deleted.</source>
        <translation>O ficheiro está a ser utilizado e não pode ser eliminado.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1473"/>
        <source>Failed to move the file to the recycle bin.</source>
        <translation>Não foi possível mover o ficheiro para a Reciclagem.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1476"/>
        <source>An unknown error occurred while deleting the file.</source>
        <translation>Ocorreu um erro desconhecido ao eliminar o ficheiro.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1559"/>
        <source>Nothing was removed: every selected file is the last copy of its group.</source>
        <translation>Nada foi removido: cada ficheiro selecionado é a última cópia do seu grupo.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1633"/>
        <source>Failed to delete the files. </source>
        <translation>Não foi possível eliminar os ficheiros. </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1697"/>
        <source>Incomplete scan</source>
        <translation>Análise incompleta</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1698"/>
        <source>This scan could not complete the image matching process due to &lt;br&gt;memory and disk space limitations. Please delete duplicate files&lt;br&gt;or select fewer folders and try again. Ensure at least 1GB of &lt;br&gt;memory and 1GB of free space on the system drive is available. &lt;br&gt;</source>
        <translation>Esta análise não conseguiu concluir a comparação de imagens devido a &lt;br&gt;limitações de memória e de espaço em disco. Elimine ficheiros duplicados&lt;br&gt;ou selecione menos pastas e tente novamente. Certifique-se de que estão disponíveis pelo menos &lt;br&gt;1 GB de memória e 1 GB de espaço livre na unidade do sistema. &lt;br&gt;</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Hard Link</source>
        <translation>Substituir por link físico</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Reflink (Copy-on-Write)</source>
        <translation>Substituir por reflink (copy-on-write)</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Symbolic Link</source>
        <translation>Substituir por link simbólico</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by links…</source>
        <translation>Substituir por links…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>A folder is not replaced by a link; only files are.</source>
        <translation>Uma pasta não é substituída por um link; apenas arquivos.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>No copy that stays is on the same drive, as a hard link needs.</source>
        <translation>Nenhuma cópia mantida está na mesma unidade, como um link físico exige.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>No copy that stays is on the same drive, as a reflink needs.</source>
        <translation>Nenhuma cópia mantida está na mesma unidade, como um reflink exige.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>The file system cannot clone files (reflink).</source>
        <translation>O sistema de arquivos não consegue clonar arquivos (reflink).</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>The copy that stays changed while the link was made.</source>
        <translation>A cópia mantida mudou enquanto o link era criado.</translation>
    </message>
    <message>
        <source>Export as CSV…</source>
        <translation>Exportar como CSV…</translation>
    </message>
    <message>
        <source>Write every group as a table (CSV) for spreadsheets and scripts</source>
        <translation>Escrever todos os grupos numa tabela (CSV) para folhas de cálculo e scripts</translation>
    </message>
</context>
<context>
    <name>ScanConfigCheck</name>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="48"/>
        <source>The minimum file size %1 KB is outside %2 to %3 KB.</source>
        <translation>O tamanho mínimo de ficheiro %1 KB está fora do intervalo de %2 a %3 KB.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="51"/>
        <source>The maximum file size %1 MB is outside %2 to %3 MB.</source>
        <translation>O tamanho máximo de ficheiro %1 MB está fora do intervalo de %2 a %3 MB.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="60"/>
        <source>The minimum file size %1 KB is not below the maximum file size %2 MB, so no file would be scanned.</source>
        <translation>O tamanho mínimo %1 KB não é inferior ao máximo %2 MB, pelo que nenhum ficheiro seria analisado.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="69"/>
        <source>The similarity threshold %1% is outside %2% to %3%.</source>
        <translation>O limiar de semelhança %1% está fora do intervalo de %2% a %3%.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="74"/>
        <source>The feature similarity threshold %1% is outside %2% to %3%.</source>
        <translation>O limiar de semelhança de características %1% está fora do intervalo de %2% a %3%.</translation>
    </message>
</context>
<context>
    <name>Selection</name>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="20"/>
        <source>Scan method</source>
        <translation>Método de análise</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="26"/>
        <source>Randomly read parts of the file for comparison to improve scanning efficiency</source>
        <translation>Comparar partes de cada ficheiro escolhidas ao acaso para analisar mais depressa</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="33"/>
        <source>Read the entire file contents to improve accuracy</source>
        <translation>Ler todo o conteúdo do ficheiro para maior precisão</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="40"/>
        <source>Files with the same name and size</source>
        <translation>Ficheiros com o mesmo nome e tamanho</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="50"/>
        <source>Select duplicates for removal following preset rules below</source>
        <translation>Selecionar duplicados a remover segundo as regras abaixo</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="56"/>
        <source>Select newest duplicates for removal</source>
        <translation>Selecionar os duplicados mais recentes</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="63"/>
        <source>Select oldest duplicates for removal</source>
        <translation>Selecionar os duplicados mais antigos</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="70"/>
        <source>Select duplicates for removal by filename</source>
        <translation>Selecionar os duplicados pelo nome do ficheiro</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="77"/>
        <source>Select duplicates for removal from prioritized location</source>
        <translation>Selecionar os duplicados das localizações prioritárias</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="117"/>
        <source>Priority</source>
        <translation>Prioridade</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="122"/>
        <source>Path</source>
        <translation>Caminho</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="132"/>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="139"/>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="163"/>
        <source>The larger the value, the higher priority to delete. Double click to change the value and it&apos;s priority.</source>
        <translation>Quanto maior o valor, maior a prioridade de eliminação. Faça duplo clique no valor para alterar a prioridade.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="179"/>
        <source>Scanning duplicate directories</source>
        <translation>Procurar também pastas duplicadas</translation>
    </message>
</context>
<context>
    <name>TCloudFolderDialog</name>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="49"/>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="53"/>
        <source>Check the folders to scan in %1. A checked folder includes everything inside it.</source>
        <translation>Marque as pastas a analisar em %1. Uma pasta marcada inclui tudo o que contém.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="69"/>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="169"/>
        <source>Network Request Error</source>
        <translation>Erro no pedido de rede</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="170"/>
        <source>The network request failed. Please log in again to re-authorize your account.</source>
        <translation>O pedido de rede falhou. Inicie sessão novamente para voltar a autorizar a sua conta.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="179"/>
        <source>Loading folders…</source>
        <translation>A carregar pastas…</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="179"/>
        <source>%n folder(s) chosen</source>
        <translation>
            <numerusform>%n pasta selecionada</numerusform>
            <numerusform>%n pastas selecionadas</numerusform>
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
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Hide from results</source>
        <translation>Ocultar dos resultados</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="83"/>
        <source>%n copies</source>
        <translation>
            <numerusform>%n cópia</numerusform>
            <numerusform>%n cópias</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="85"/>
        <source>%n selected</source>
        <translation>
            <numerusform>%n selecionada</numerusform>
            <numerusform>%n selecionadas</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="149"/>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="149"/>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="151"/>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="153"/>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>In a protected folder: this copy is always kept and cannot be selected.</source>
        <translation>Numa pasta protegida: esta cópia é sempre mantida e não pode ser selecionada.</translation>
    </message>
</context>
<context>
    <name>TOpenSaveThread</name>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="223"/>
        <source>The project file could not be opened.</source>
        <translation>Não foi possível abrir o ficheiro de projeto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="225"/>
        <source>The project file is damaged or incomplete.</source>
        <translation>O ficheiro de projeto está danificado ou incompleto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="227"/>
        <source>This file is not a project file of this program.</source>
        <translation>Este ficheiro não é um ficheiro de projeto deste programa.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="229"/>
        <source>The project file contains invalid data and was not opened.</source>
        <translation>O ficheiro de projeto contém dados inválidos e não foi aberto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="231"/>
        <source>None of the duplicate groups in this project exist any more.</source>
        <translation>Nenhum dos grupos de duplicados deste projeto existe ainda.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="233"/>
        <source>The project file could not be saved.</source>
        <translation>Não foi possível guardar o ficheiro de projeto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="235"/>
        <source>The operation was cancelled.</source>
        <translation>A operação foi cancelada.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="237"/>
        <source>Unknown error.</source>
        <translation>Erro desconhecido.</translation>
    </message>
</context>
<context>
    <name>TPieChart</name>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="189"/>
        <source>Images</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="191"/>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="193"/>
        <source>Musics</source>
        <translation>Música</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="195"/>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="197"/>
        <source>Folder</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="199"/>
        <source>Others</source>
        <translation>Outros</translation>
    </message>
</context>
<context>
    <name>CListViewDelegate</name>
    <message>
        <source>Protected</source>
        <translation>Protegida</translation>
    </message>
    <message>
        <source>Protected: nothing in this folder is selected or removed. Click to lift the protection.</source>
        <translation>Protegida: nada nesta pasta é selecionado ou removido. Clique para retirar a proteção.</translation>
    </message>
    <message>
        <source>Protect this folder: nothing in it will be selected or removed.</source>
        <translation>Proteger esta pasta: nada nela será selecionado ou removido.</translation>
    </message>
</context>
<context>
    <name>ProtectedFolderList</name>
    <message>
        <source>Protected folders</source>
        <translation>Pastas protegidas</translation>
    </message>
    <message>
        <source>Nothing in these folders is ever selected or removed. Their copies still count as the ones that stay.</source>
        <translation>Nada nestas pastas é alguma vez selecionado ou removido. As suas cópias continuam a contar como as que ficam.</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Adicionar pasta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
    </message>
</context>
</TS>
