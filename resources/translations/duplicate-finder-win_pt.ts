<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT">
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
    <name>DFIgnoreListWidget</name>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="159"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="166"/>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="160"/>
        <source>The maximum file size cannot be less than the minimum file size.</source>
        <translation>O tamanho máximo de ficheiro não pode ser inferior ao tamanho mínimo.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="167"/>
        <source>Please select the folder where the deleted files will be moved to.</source>
        <translation>Selecione a pasta para onde os ficheiros eliminados serão movidos.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="221"/>
        <source>Select folder</source>
        <translation>Selecionar pasta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="231"/>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="239"/>
        <source>All Files (*.*)</source>
        <translation>Todos os ficheiros (*.*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="242"/>
        <source>All Files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="245"/>
        <source>Select Files</source>
        <translation>Selecionar ficheiros</translation>
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
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="90"/>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="91"/>
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
</context>
<context>
    <name>GroupListPage</name>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="35"/>
        <source>%1 copies, %2</source>
        <translation>%1 cópias, %2</translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="58"/>
        <source>Scan results</source>
        <translation>Resultados da análise</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupListPage.cpp" line="66"/>
        <source>%n group(s) of duplicates, %1 in all</source>
        <translation>
            <numerusform>%n grupo de duplicados, %1 no total</numerusform>
            <numerusform>%n grupos de duplicados, %1 no total</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/GroupListPage.cpp" line="75"/>
        <source>Back</source>
        <translation>Voltar</translation>
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
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="327"/>
        <source>Files scanned</source>
        <translation>Ficheiros analisados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="328"/>
        <source>Duplicates found</source>
        <translation>Duplicados encontrados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="329"/>
        <source>Size of duplicates</source>
        <translation>Tamanho dos duplicados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="330"/>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="331"/>
        <source>Elapsed time</source>
        <translation>Tempo decorrido</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="378"/>
        <source>Local Computer</source>
        <translation>Computador local</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="401"/>
        <source>User Guide</source>
        <translation>Guia do utilizador</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="402"/>
        <source>Product FAQ</source>
        <translation>Perguntas frequentes</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="403"/>
        <source>Feedback and Support</source>
        <translation>Comentários e suporte</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="404"/>
        <source>Check for Updates</source>
        <translation>Procurar atualizações</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="405"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1130"/>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="406"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1148"/>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="418"/>
        <source>Show Log in Explorer</source>
        <translation>Mostrar registo no explorador</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="420"/>
        <source>Open Project</source>
        <translation>Abrir projeto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="421"/>
        <source>Save Project</source>
        <translation>Guardar projeto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="422"/>
        <source>Show Results</source>
        <translation>Mostrar resultados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="461"/>
        <source>Scan</source>
        <translation>Analisar</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="474"/>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="482"/>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="488"/>
        <source>New Scan</source>
        <translation>Nova análise</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="493"/>
        <source>Show results</source>
        <translation>Mostrar resultados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="550"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation>&quot;%1&quot; é um ficheiro, não uma pasta. Só é possível analisar pastas: adicione antes a pasta que o contém.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="554"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation>Não foi possível encontrar &quot;%1&quot;. Pode ter sido movido ou removido.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="557"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>%n item não foi adicionado porque não é uma pasta:</numerusform>
            <numerusform>%n itens não foram adicionados porque não são pastas:</numerusform>
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
            <numerusform>%n pasta adicionada</numerusform>
            <numerusform>%n pastas adicionadas</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="610"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="693"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>Depois de adicionar contas e pastas na nuvem, já não é possível adicionar pastas locais.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="614"/>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="627"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>Depois de adicionar pastas locais, já não é possível adicionar contas na nuvem.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="824"/>
        <source>%1 and %2 could not be read.</source>
        <translation>Não foi possível ler %1 e %2.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="825"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n pasta</numerusform>
            <numerusform>%n pastas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="825"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n ficheiro</numerusform>
            <numerusform>%n ficheiros</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="827"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>Não foi possível ler %n pasta.</numerusform>
            <numerusform>Não foi possível ler %n pastas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="829"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>Não foi possível ler %n ficheiro.</numerusform>
            <numerusform>Não foi possível ler %n ficheiros.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="850"/>
        <source>Folders that could not be read</source>
        <translation>Pastas que não foi possível ler</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="851"/>
        <source>Files that could not be read</source>
        <translation>Ficheiros que não foi possível ler</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="852"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation>Ligações não seguidas porque levam para fora das pastas escolhidas</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="854"/>
        <source>System folders not entered</source>
        <translation>Pastas do sistema não percorridas</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="862"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>%n ligação para fora das pastas escolhidas não foi seguida.</numerusform>
            <numerusform>%n ligações para fora das pastas escolhidas não foram seguidas.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="869"/>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="878"/>
        <source>The chosen folder could not be read.</source>
        <translation>Não foi possível ler a pasta escolhida.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="879"/>
        <source>The chosen folders could not be read.</source>
        <translation>Não foi possível ler as pastas escolhidas.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="881"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation>Verifique se ainda existe e se tem permissão para a abrir.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="882"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation>Verifique se ainda existem e se tem permissão para as abrir.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="901"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1004"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1057"/>
        <source>Open File</source>
        <translation>Abrir ficheiro</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="902"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation>&quot;%1&quot; é uma pasta, não um ficheiro de projeto. Para a analisar, adicione-a com o botão +.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="905"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation>O ficheiro de projeto &quot;%1&quot; não existe.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1017"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1056"/>
        <source>Save File</source>
        <translation>Guardar ficheiro</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1070"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>Os resultados da análise da nuvem não podem ser guardados.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1098"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1198"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>Os resultados da análise atual não foram guardados. Pretende guardar o ficheiro?</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1131"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;Versão %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1149"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>O novo idioma será aplicado da próxima vez que o programa for iniciado.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1183"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>Foi detetado um encerramento anómalo durante a última eliminação</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1186"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Itens processados antes da interrupção: %1 de %2.&lt;br&gt;O registro de remoções lista cada um e para onde foi:&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1184"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>O programa terminou inesperadamente durante a última eliminação em lote,&lt;br&gt;possivelmente devido a interferência do antivírus.&lt;br&gt;&lt;br&gt;Desative temporariamente o antivírus ou adicione esta aplicação&lt;br&gt;à sua lista de permissões para evitar falhas de eliminação ou bloqueios.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>Open Data Folder</source>
        <translation>Abrir pasta de dados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="791"/>
        <source>Error</source>
        <translation>Erro</translation>
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
    <name>TOpenSaveThread</name>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="144"/>
        <source>The project file could not be opened.</source>
        <translation>Não foi possível abrir o ficheiro de projeto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="146"/>
        <source>The project file is damaged or incomplete.</source>
        <translation>O ficheiro de projeto está danificado ou incompleto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="148"/>
        <source>This file is not a project file of this program.</source>
        <translation>Este ficheiro não é um ficheiro de projeto deste programa.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="150"/>
        <source>The project file contains invalid data and was not opened.</source>
        <translation>O ficheiro de projeto contém dados inválidos e não foi aberto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="152"/>
        <source>None of the duplicate groups in this project exist any more.</source>
        <translation>Nenhum dos grupos de duplicados deste projeto existe ainda.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="154"/>
        <source>The project file could not be saved.</source>
        <translation>Não foi possível guardar o ficheiro de projeto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="156"/>
        <source>The operation was cancelled.</source>
        <translation>A operação foi cancelada.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="158"/>
        <source>Unknown error.</source>
        <translation>Erro desconhecido.</translation>
    </message>
</context>
</TS>
