<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>CsvExportRun</name>
    <message>
        <source>Export Failed</source>
        <translation>Error al exportar</translation>
    </message>
    <message>
        <source>The table could not be written to %1:
%2</source>
        <translation>No se pudo escribir la tabla en %1:
%2</translation>
    </message>
    <message>
        <source>Export as CSV</source>
        <translation>Exportar como CSV</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>Tablas CSV (*.csv)</translation>
    </message>
</context>
<context>
    <name>MoveTargetDialog</name>
    <message>
        <source>Move to Folder</source>
        <translation>Mover a carpeta</translation>
    </message>
    <message>
        <source>Move the selected items into this folder:</source>
        <translation>Mover los elementos seleccionados a esta carpeta:</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elija una carpeta</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Examinar…</translation>
    </message>
    <message>
        <source>Keep the folder structure</source>
        <translation>Mantener la estructura de carpetas</translation>
    </message>
    <message>
        <source>Each item goes into the same sub-folders below the target as below the scanned folder that holds it, so that moved files keep their context. Without it, every item lands in the target itself.</source>
        <translation>Cada elemento va a las mismas subcarpetas bajo el destino que tenía bajo la carpeta analizada que lo contiene, para que los archivos movidos conserven su contexto. Sin esto, cada elemento queda directamente en el destino.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Seleccionar carpeta</translation>
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
        <translation>Cancelando...</translation>
    </message>
</context>
<context>
    <name>DFGeneralWidget</name>
    <message>
        <source>The robust comparison checks every uncertain pair by its key points itself.</source>
        <translation>La comparación robusta comprueba por sí misma cada par dudoso mediante sus puntos característicos.</translation>
    </message>
    <message>
        <source>Lowest similarity</source>
        <translation>Similitud mínima</translation>
    </message>
    <message>
        <source>The robust comparison shows a match only when the pictures are at least this similar.</source>
        <translation>La comparación robusta solo muestra una coincidencia cuando las imágenes son al menos así de similares.</translation>
    </message>
</context>
<context>
    <name>DFIgnoreListWidget</name>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="191"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="199"/>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="192"/>
        <source>The maximum file size cannot be less than the minimum file size.</source>
        <translation>El tamaño máximo de archivo no puede ser menor que el tamaño mínimo.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="200"/>
        <source>Please select the folder where the deleted files will be moved to.</source>
        <translation>Seleccione la carpeta a la que se moverán los archivos eliminados.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="254"/>
        <source>Select folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="264"/>
        <source>Select Folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="272"/>
        <source>All Files (*.*)</source>
        <translation>Todos los archivos (*.*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="275"/>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="278"/>
        <source>Select Files</source>
        <translation>Seleccionar archivos</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="98"/>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="112"/>
        <source>Clear cache</source>
        <translation>Vaciar caché</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="99"/>
        <source>The cache is in use by a running scan. Try again when it has ended.</source>
        <translation>Una búsqueda en curso está usando la caché. Inténtelo de nuevo cuando haya terminado.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFIgnoreListWidget.cpp" line="111"/>
        <source>Content keys kept from earlier scans: %1</source>
        <translation>Claves de contenido guardadas de búsquedas anteriores: %1</translation>
    </message>
</context>
<context>
    <name>DFPreferencesDialog</name>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="14"/>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="39"/>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="44"/>
        <source>Duplicate files</source>
        <translation>Archivos duplicados</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="49"/>
        <source>Similar images</source>
        <translation>Imágenes similares</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="62"/>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="85"/>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.ui" line="95"/>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="97"/>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFPreferencesDialog.cpp" line="98"/>
        <source>You cannot change settings of preferences while the scan is in progress.</source>
        <translation>No se puede cambiar la configuración mientras el análisis está en curso.</translation>
    </message>
</context>
<context>
    <name>DFSelectionWidget</name>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="140"/>
        <source>The folder has been added.</source>
        <translation>La carpeta ya se ha añadido.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="179"/>
        <source>Select Folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="216"/>
        <source>%1 is not a number.</source>
        <translation>%1 no es un número.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/DFSelectionWidget.cpp" line="224"/>
        <source>%1 is added.</source>
        <translation>%1 ya está asignado.</translation>
    </message>
</context>
<context>
    <name>Genernal</name>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="20"/>
        <source>Enable similar images function</source>
        <translation>Activar la búsqueda de imágenes similares</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="27"/>
        <source>Similarity Comparison Algorithms</source>
        <translation>Algoritmos de comparación de similitud</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="36"/>
        <source>Smart Selection</source>
        <translation>Selección inteligente</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="43"/>
        <source>Histogram Data Comparison (Quality First)</source>
        <translation>Comparación de histogramas (prioridad a la calidad)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="50"/>
        <source>pHash Data Comparison (Speed First)</source>
        <translation>Comparación pHash (prioridad a la velocidad)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="69"/>
        <source>Histogram similarity</source>
        <translation>Similitud del histograma</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="102"/>
        <source>The basic algorithm detects similar images quickly but vaguely, the larger the value, the higher the similarty.</source>
        <translation>El algoritmo básico detecta imágenes similares rápidamente pero de forma aproximada. Cuanto mayor sea el valor, mayor será la similitud exigida.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="112"/>
        <source>Features similarity</source>
        <translation>Similitud de características</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="139"/>
        <source>The advanced algorithm detects similar images through feature points in the image. Using this algorithm, detecting simialr images takes more time, but the result will be more accurate. The larger the value, the higher the similarity.</source>
        <translation>El algoritmo avanzado detecta imágenes similares mediante puntos característicos de la imagen. Con él la búsqueda tarda más, pero el resultado es más preciso. Cuanto mayor sea el valor, mayor será la similitud exigida.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="152"/>
        <source>No comparision between different types of images</source>
        <translation>No comparar imágenes de tipos diferentes</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="161"/>
        <source>Compare images with similar size and aspect ratio (within ratio)</source>
        <translation>Comparar solo imágenes de tamaño y proporciones parecidos (hasta el factor)</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="196"/>
        <source>Select similar images for removal following preset rules below </source>
        <translation>Seleccionar imágenes similares para eliminar según las reglas siguientes</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="211"/>
        <source>Follow the duplicates removal rule</source>
        <translation>Seguir la regla de los duplicados</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="218"/>
        <source>Select high-resolution similar images for removal</source>
        <translation>Seleccionar las imágenes de alta resolución</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="225"/>
        <source>Select low-resolution similar images for removal</source>
        <translation>Seleccionar las imágenes de baja resolución</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="232"/>
        <source>Select high-quality similar images for removal</source>
        <translation>Seleccionar las imágenes de alta calidad</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Genernal.ui" line="239"/>
        <source>Select low-quality similar images for removal</source>
        <translation>Seleccionar las imágenes de baja calidad</translation>
    </message>
    <message>
        <source>Robust Comparison (Edited Copies)</source>
        <translation>Comparación robusta (copias editadas)</translation>
    </message>
    <message>
        <source>Also finds cropped, rotated, mirrored, grey and re-saved copies in any picture format.</source>
        <translation>También encuentra copias recortadas, giradas, reflejadas, en escala de grises y guardadas de nuevo, en cualquier formato de imagen.</translation>
    </message>
</context>
<context>
    <name>IgnoreList</name>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="25"/>
        <source>Remove method</source>
        <translation>Método de eliminación</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="31"/>
        <source>Move to Recycle Bin</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="38"/>
        <source>Remove permanently</source>
        <translation>Eliminar permanentemente</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="45"/>
        <source>Move to Folder</source>
        <translation>Mover a una carpeta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="67"/>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="79"/>
        <source>Select minimum and maximum file size</source>
        <translation>Tamaño mínimo y máximo de archivo</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="88"/>
        <source>Minimum file size </source>
        <translation>Tamaño mínimo</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="111"/>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="118"/>
        <source>Maximum file size</source>
        <translation>Tamaño máximo</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="141"/>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="166"/>
        <source>Ignore folders and files in the list</source>
        <translation>Ignorar las carpetas y archivos de la lista</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="187"/>
        <source>Add folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="194"/>
        <source>Add files</source>
        <translation>Añadir archivos</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="201"/>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="208"/>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="233"/>
        <source>Support or Ignore</source>
        <translation>Incluir o ignorar</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="239"/>
        <source>Separate extensions with comma, such as txt, avi, dll</source>
        <translation>Separe las extensiones con comas, por ejemplo txt, avi, dll</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="249"/>
        <source>Scan only file formats:</source>
        <translation>Analizar solo estos formatos:</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="259"/>
        <source>Ignore scanning file formats:</source>
        <translation>Ignorar estos formatos:</translation>
    </message>
    <message>
        <location filename="../../src/preferences/IgnoreList.ui" line="272"/>
        <source>Ignore system hidden folders and files</source>
        <translation>Ignorar carpetas y archivos ocultos o del sistema</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by hard link</source>
        <translation>Reemplazar por enlace duro</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by reflink (copy-on-write clone)</source>
        <translation>Reemplazar por reflink (clon de copia en escritura)</translation>
    </message>
    <message>
        <location filename="../../src/settingsdialog/IgnoreList.ui"/>
        <source>Replace by symbolic link</source>
        <translation>Reemplazar por enlace simbólico</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Looking for files…</source>
        <translation>Buscando archivos…</translation>
    </message>
    <message>
        <source>Comparing files of the same size…</source>
        <translation>Comparando archivos del mismo tamaño…</translation>
    </message>
    <message>
        <source>Reading pictures…</source>
        <translation>Leyendo imágenes…</translation>
    </message>
    <message>
        <source>Reading pictures %1</source>
        <translation>Leyendo imágenes %1</translation>
    </message>
    <message>
        <source>Comparing pictures %1</source>
        <translation>Comparando imágenes %1</translation>
    </message>
    <message>
        <source>Checking picture details %1</source>
        <translation>Comprobando detalles de las imágenes %1</translation>
    </message>
    <message>
        <source>Scan stopped – results are incomplete</source>
        <translation>Análisis detenido: los resultados están incompletos</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Análisis completado</translation>
    </message>
    <message>
        <source>The scan was stopped before any files were compared.</source>
        <translation>El análisis se detuvo antes de comparar ningún archivo.</translation>
    </message>
    <message>
        <source>No duplicates were found among the files compared before the stop.</source>
        <translation>No se encontraron duplicados entre los archivos comparados antes de detener.</translation>
    </message>
    <message>
        <source>Only these file types are scanned: %1</source>
        <translation>Solo se analizan estos tipos de archivo: %1</translation>
    </message>
    <message>
        <source>These file types are skipped: %1</source>
        <translation>Se omiten estos tipos de archivo: %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="343"/>
        <source>Files scanned</source>
        <translation>Archivos analizados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="344"/>
        <source>Duplicates found</source>
        <translation>Duplicados encontrados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="345"/>
        <source>Size of duplicates</source>
        <translation>Tamaño de los duplicados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="346"/>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="347"/>
        <source>Elapsed time</source>
        <translation>Tiempo transcurrido</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="395"/>
        <source>Local Computer</source>
        <translation>Equipo local</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="415"/>
        <source>%1 (needs rclone)</source>
        <translation>%1 (requiere rclone)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="427"/>
        <source>User Guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="428"/>
        <source>Product FAQ</source>
        <translation>Preguntas frecuentes</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="429"/>
        <source>Feedback and Support</source>
        <translation>Comentarios y soporte</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="430"/>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
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
        <translation>Mostrar registro en el explorador</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="447"/>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="448"/>
        <source>Save Project</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="449"/>
        <source>Show Results</source>
        <translation>Mostrar resultados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="488"/>
        <source>Scan</source>
        <translation>Analizar</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="501"/>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="509"/>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="515"/>
        <source>New Scan</source>
        <translation>Nuevo análisis</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="520"/>
        <source>Show results</source>
        <translation>Mostrar resultados</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="577"/>
        <source>&quot;%1&quot; is a file, not a folder. Only folders can be scanned: add the folder that holds it instead.</source>
        <translation>«%1» es un archivo, no una carpeta. Solo se pueden analizar carpetas: añada en su lugar la carpeta que lo contiene.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="581"/>
        <source>&quot;%1&quot; could not be found. It may have been moved or removed.</source>
        <translation>No se encontró «%1». Puede que se haya movido o eliminado.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="584"/>
        <source>%n item(s) were not added because they are not folders:</source>
        <translation>
            <numerusform>No se añadió %n elemento porque no es una carpeta:</numerusform>
            <numerusform>No se añadieron %n elementos porque no son carpetas:</numerusform>
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
            <numerusform>%n carpeta añadida</numerusform>
            <numerusform>%n carpetas añadidas</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="644"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="874"/>
        <source>After adding cloud accounts and directories, local directories can no longer be added.</source>
        <translation>Después de añadir cuentas y carpetas en la nube, ya no se pueden añadir carpetas locales.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="648"/>
        <source>Select Folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="663"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="670"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="731"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="739"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1182"/>
        <source>info</source>
        <translation>Información</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="664"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="732"/>
        <source>After adding local directories, cloud accounts can no longer be added.</source>
        <translation>Después de añadir carpetas locales, ya no se pueden añadir cuentas en la nube.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="670"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="739"/>
        <source>Multiple cloud accounts cannot be scanned at the same time.</source>
        <translation>No se pueden analizar varias cuentas en la nube a la vez.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="697"/>
        <source>Sign in to %1</source>
        <translation>Iniciar sesión en %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="698"/>
        <source>Finish signing in to %1 in your web browser. This window goes on by itself once you are through.</source>
        <translation>Termine de iniciar sesión en %1 en su navegador web. Esta ventana continuará sola cuando haya terminado.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="792"/>
        <source>Sign-in Failed</source>
        <translation>Error al iniciar sesión</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="793"/>
        <source>The cloud account could not be signed in.

%1</source>
        <translation>No se pudo iniciar sesión en la cuenta en la nube.

%1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="805"/>
        <source>Insufficient System Disk Space</source>
        <translation>Espacio insuficiente en la unidad del sistema</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="806"/>
        <source>Thumbnail download was not completed. This may affect similar image detection results. Please free up some disk space and try again.</source>
        <translation>La descarga de las miniaturas no se completó. Esto puede afectar a los resultados de la detección de imágenes similares. Libere espacio en disco e inténtelo de nuevo.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="817"/>
        <source>If no browser window opened, open &lt;a href=&quot;%1&quot;&gt;this sign-in page&lt;/a&gt;.</source>
        <translation>Si no se abrió ninguna ventana del navegador, abra &lt;a href=&quot;%1&quot;&gt;esta página de inicio de sesión&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1046"/>
        <source>%1 and %2 could not be read.</source>
        <translation>No se pudieron leer %1 y %2.</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1047"/>
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%n carpeta</numerusform>
            <numerusform>%n carpetas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1047"/>
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1049"/>
        <source>%n folder(s) could not be read.</source>
        <translation>
            <numerusform>No se pudo leer %n carpeta.</numerusform>
            <numerusform>No se pudieron leer %n carpetas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1051"/>
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>No se pudo leer %n archivo.</numerusform>
            <numerusform>No se pudieron leer %n archivos.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1072"/>
        <source>Folders that could not be read</source>
        <translation>Carpetas que no se pudieron leer</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1073"/>
        <source>Files that could not be read</source>
        <translation>Archivos que no se pudieron leer</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1074"/>
        <source>Links not followed because they lead outside the chosen folders</source>
        <translation>Enlaces no seguidos porque llevan fuera de las carpetas elegidas</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1076"/>
        <source>System folders not entered</source>
        <translation>Carpetas del sistema no exploradas</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1084"/>
        <source>%n link(s) leading outside the chosen folders were not followed.</source>
        <translation>
            <numerusform>No se siguió %n enlace que lleva fuera de las carpetas elegidas.</numerusform>
            <numerusform>No se siguieron %n enlaces que llevan fuera de las carpetas elegidas.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1091"/>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1100"/>
        <source>The chosen folder could not be read.</source>
        <translation>No se pudo leer la carpeta elegida.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1101"/>
        <source>The chosen folders could not be read.</source>
        <translation>No se pudieron leer las carpetas elegidas.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1103"/>
        <source>Check that it still exists and that you are allowed to open it.</source>
        <translation>Compruebe que todavía existe y que tiene permiso para abrirla.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1104"/>
        <source>Check that they still exist and that you are allowed to open them.</source>
        <translation>Compruebe que todavía existen y que tiene permiso para abrirlas.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1123"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1247"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1300"/>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1124"/>
        <source>&quot;%1&quot; is a folder, not a project file. To scan it, add it with the + button.</source>
        <translation>«%1» es una carpeta, no un archivo de proyecto. Para analizarla, añádala con el botón +.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1127"/>
        <source>The project file &quot;%1&quot; does not exist.</source>
        <translation>El archivo de proyecto «%1» no existe.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1178"/>
        <source>Cloud Scan Failed</source>
        <translation>Error en el análisis de la nube</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1179"/>
        <source>The cloud scan could not be completed: %1</source>
        <translation>No se pudo completar el análisis de la nube: %1</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1183"/>
        <source>Thumbnail download was not completed. This may affect similar image detection results. </source>
        <translation>La descarga de las miniaturas no se completó. Esto puede afectar a los resultados de la detección de imágenes similares. </translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1260"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1299"/>
        <source>Save File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1313"/>
        <source>The cloud drive scan results cannot be saved.</source>
        <translation>Los resultados del análisis de la nube no se pueden guardar.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1341"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1460"/>
        <source>The current scan results have not been saved. Do you want to save the file?</source>
        <translation>Los resultados del análisis actual no se han guardado. ¿Desea guardar el archivo?</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1374"/>
        <source>%1&lt;br&gt;Version %2 (%3)</source>
        <translation>%1&lt;br&gt;Versión %2 (%3)</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1394"/>
        <source>The new language takes effect the next time the program starts.</source>
        <translation>El nuevo idioma se aplicará la próxima vez que se inicie el programa.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1449"/>
        <source>Abnormal Exit Detected During Last Deletion</source>
        <translation>Se detectó un cierre anómalo durante la última eliminación</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1444"/>
        <source>Items handled before it stopped: %1 of %2.&lt;br&gt;The removal journal lists each one and where it went:&lt;br&gt;%3</source>
        <translation>Elementos procesados antes de la interrupción: %1 de %2.&lt;br&gt;El registro de eliminaciones indica cada uno y adónde fue:&lt;br&gt;%3</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="1435"/>
        <source>The program exited unexpectedly during the last batch deletion,&lt;br&gt;possibly due to interference from antivirus software.&lt;br&gt;&lt;br&gt;Please disable your antivirus temporarily or add this application&lt;br&gt;to its whitelist to avoid deletion failures or crashes.</source>
        <translation>El programa se cerró inesperadamente durante la última eliminación por lotes,&lt;br&gt;posiblemente por la interferencia de un antivirus.&lt;br&gt;&lt;br&gt;Desactive temporalmente el antivirus o añada esta aplicación&lt;br&gt;a su lista de permitidos para evitar errores de eliminación o bloqueos.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="445"/>
        <source>Open Data Folder</source>
        <translation>Abrir carpeta de datos</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="962"/>
        <location filename="../../src/mainwindow/MainWindow.cpp" line="997"/>
        <source>Error</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>PicturePreviewDialog</name>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="22"/>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="34"/>
        <source>Chosen copy</source>
        <translation>Copia elegida</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="36"/>
        <source>Compared with</source>
        <translation>Comparada con</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="42"/>
        <source>Previous copy (Left arrow)</source>
        <translation>Copia anterior (flecha izquierda)</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="50"/>
        <source>Next copy (Right arrow)</source>
        <translation>Copia siguiente (flecha derecha)</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewDialog.cpp" line="72"/>
        <source>Left and Right arrow keys show the other copies of the group.</source>
        <translation>Las teclas de flecha izquierda y derecha muestran las demás copias del grupo.</translation>
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
        <translation>No verificado</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="104"/>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="105"/>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="106"/>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="107"/>
        <source>Similarity</source>
        <translation>Similitud</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="112"/>
        <source>Remove this copy</source>
        <translation>Eliminar esta copia</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="182"/>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="193"/>
        <source>%1 file</source>
        <translation>Archivo %1</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="200"/>
        <source>Loading…</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <location filename="../../src/results/PicturePreviewPane.cpp" line="215"/>
        <source>This picture cannot be shown.</source>
        <translation>No se puede mostrar esta imagen.</translation>
    </message>
    <message>
        <source>Matched by</source>
        <translation>Coincidencia</translation>
    </message>
</context>
<context>
    <name>ProblemListDialog</name>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="17"/>
        <source>Not Scanned</source>
        <translation>No analizado</translation>
    </message>
    <message>
        <location filename="../../src/widgets/ProblemListDialog.cpp" line="20"/>
        <source>These items were left out of the scan. Duplicates among them were not looked for.</source>
        <translation>Estos elementos quedaron fuera del análisis. No se buscaron duplicados entre ellos.</translation>
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
            <numerusform>... y %n más</numerusform>
            <numerusform>... y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemovalSummaryDialog</name>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="22"/>
        <source>Removal finished</source>
        <translation>Eliminación finalizada</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Item</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="32"/>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="48"/>
        <source>Removed</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="50"/>
        <source>Moved</source>
        <translation>Movido</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="51"/>
        <source>In the trash</source>
        <translation>En la papelera</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="56"/>
        <source>Kept</source>
        <translation>Conservado</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="56"/>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="74"/>
        <source>Space freed: %1</source>
        <translation>Espacio liberado: %1</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="93"/>
        <source>%n item(s) removed.</source>
        <translation>
            <numerusform>Se eliminó %n elemento.</numerusform>
            <numerusform>Se eliminaron %n elementos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/RemovalSummaryDialog.cpp" line="96"/>
        <source>%n item(s) stayed in place; the reasons are listed below.</source>
        <translation>
            <numerusform>%n elemento se quedó en su sitio; los motivos se indican a continuación.</numerusform>
            <numerusform>%n elementos se quedaron en su sitio; los motivos se indican a continuación.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Replaced by a link</source>
        <translation>Reemplazado por enlace</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Now reads %1</source>
        <translation>Ahora lee %1</translation>
    </message>
    <message>
        <location filename="../../src/results/RemovalSummaryDialog.cpp"/>
        <source>Each file replaced by a hard link is now another name of the copy that stays: both names share one set of permissions and one owner.</source>
        <translation>Cada archivo reemplazado por un enlace duro es ahora otro nombre de la copia que se conserva: ambos nombres comparten los mismos permisos y el mismo propietario.</translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) replaced by a link.</source>
        <translation>
            <numerusform>%n elemento sustituido por un enlace.</numerusform>
            <numerusform>%n elementos sustituidos por enlaces.</numerusform>
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
        <translation>no verificado</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="52"/>
        <source>Back</source>
        <translation>Volver</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="62"/>
        <source>Scan Results</source>
        <translation>Resultados del análisis</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="82"/>
        <source>Search by name</source>
        <translation>Buscar por nombre</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="98"/>
        <source>Sort by</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="106"/>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="111"/>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="116"/>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="121"/>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="126"/>
        <source>Selected</source>
        <translation>Selección</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="153"/>
        <source>Loading results...</source>
        <translation>Cargando resultados...</translation>
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
        <translation>Imágenes</translation>
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
        <translation>Carpetas</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="303"/>
        <location filename="../../src/results/ResultForm.cpp" line="83"/>
        <source>Packages</source>
        <translation>Paquetes</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="316"/>
        <location filename="../../src/results/ResultForm.ui" line="931"/>
        <location filename="../../src/results/ResultForm.cpp" line="85"/>
        <source>Others</source>
        <translation>Otros</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="469"/>
        <source>Select</source>
        <translation>Seleccionar</translation>
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
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="515"/>
        <source>Flow</source>
        <translation>Mosaico</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="546"/>
        <source>Thumbnail size</source>
        <translation>Tamaño de las miniaturas</translation>
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
        <translation>Se puede liberar</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1102"/>
        <source>Selected:</source>
        <translation>Seleccionados:</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.ui" line="1123"/>
        <source>Remove Selected</source>
        <translation>Eliminar seleccionados</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="125"/>
        <source>If it keeps happening, write to &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</source>
        <translation>Si el problema persiste, escriba a &lt;a href=&quot;mailto:%1&quot;&gt;%1&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="128"/>
        <source>If it keeps happening, please send us the log files from &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</source>
        <translation>Si el problema persiste, envíenos los archivos de registro de &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="332"/>
        <source>Select by Filename</source>
        <translation>Seleccionar por nombre de archivo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="333"/>
        <source>Select by Priority</source>
        <translation>Seleccionar por prioridad</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="334"/>
        <source>Select Newest</source>
        <translation>Seleccionar los más recientes</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="335"/>
        <source>Select Oldest</source>
        <translation>Seleccionar los más antiguos</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="336"/>
        <source>Select high-quality</source>
        <translation>Seleccionar alta calidad</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="337"/>
        <source>Select low-quality</source>
        <translation>Seleccionar baja calidad</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="338"/>
        <source>Select high-resolution</source>
        <translation>Seleccionar alta resolución</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="339"/>
        <source>Select low-resolution</source>
        <translation>Seleccionar baja resolución</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="340"/>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="341"/>
        <source>Deselect</source>
        <translation>Anular selección</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="358"/>
        <source>Show Only Duplicate Files</source>
        <translation>Mostrar solo archivos duplicados</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="359"/>
        <source>Show Only Selected Files</source>
        <translation>Mostrar solo archivos seleccionados</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="360"/>
        <source>Show All Files</source>
        <translation>Mostrar todos los archivos</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="380"/>
        <source>Similarity</source>
        <translation>Similitud</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="414"/>
        <location filename="../../src/results/ResultForm.cpp" line="1769"/>
        <source>Move to Recycle Bin</source>
        <translation>Mover a la Papelera de reciclaje</translation>
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
        <translation>Mover a una carpeta</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="451"/>
        <source>Select Folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="502"/>
        <source>Loading Data</source>
        <translation>Cargando datos</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="502"/>
        <source>Data is still loading, please wait...</source>
        <translation>Los datos aún se están cargando; espere...</translation>
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
        <translation>cargando…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="841"/>
        <source>%1% similar</source>
        <translation>%1&#xa0;% de similitud</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/ResultForm.cpp" line="853"/>
        <source>%1 · %n copies · %2</source>
        <translation>
            <numerusform>%1 · %n copia · %2</numerusform>
            <numerusform>%1 · %n copias · %2</numerusform>
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
        <translation>Eliminar los archivos seleccionados de este grupo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="990"/>
        <location filename="../../src/results/ResultForm.cpp" line="1050"/>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="991"/>
        <source>Hide from Results</source>
        <translation>Ocultar de los resultados</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="993"/>
        <source>Remove This File</source>
        <translation>Eliminar este archivo</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1041"/>
        <source>Open Link Failed</source>
        <translation>No se pudo abrir el enlace</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1041"/>
        <source>Failed to get the web link for the file.</source>
        <translation>No se pudo obtener el enlace web del archivo.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1050"/>
        <location filename="../../src/results/ResultForm.cpp" line="1456"/>
        <source>The file was not found.</source>
        <translation>No se encontró el archivo.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1106"/>
        <location filename="../../src/results/ResultForm.cpp" line="1292"/>
        <location filename="../../src/results/ResultForm.cpp" line="1558"/>
        <location filename="../../src/results/ResultForm.cpp" line="1611"/>
        <location filename="../../src/results/ResultForm.cpp" line="1635"/>
        <source>Delete Failed</source>
        <translation>Error al eliminar</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1107"/>
        <location filename="../../src/results/ResultForm.cpp" line="1612"/>
        <source>Failed to delete the file: %1</source>
        <translation>No se pudo eliminar el archivo: %1</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1166"/>
        <source>No selected</source>
        <translation>Sin selección</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1166"/>
        <source>The current group has no selected files.</source>
        <translation>El grupo actual no tiene archivos seleccionados.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1207"/>
        <source>Selected files will be moved into the Cloud Drive&apos;s Recycle Bin, and they may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>Los archivos seleccionados se moverán a la papelera de la unidad en la nube; los que sean demasiado grandes podrían eliminarse permanentemente. ¿Seguro que desea eliminarlos?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1211"/>
        <source>The selected files will be permanently deleted, are you sure to delete?</source>
        <translation>Los archivos seleccionados se eliminarán permanentemente. ¿Seguro que desea eliminarlos?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1213"/>
        <source>Selected files will be moved into the Recycle Bin, and it may be permanently deleted if the files&apos; size is too large. Are you sure you want to delete them?</source>
        <translation>Los archivos seleccionados se moverán a la Papelera de reciclaje; los que sean demasiado grandes podrían eliminarse permanentemente. ¿Seguro que desea eliminarlos?</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1256"/>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1256"/>
        <source>No Selected Files!</source>
        <translation>¡No hay archivos seleccionados!</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1271"/>
        <source>In some groups every copy is selected, so nothing of them would be kept.

Remove every copy of those files too? With &quot;No&quot; one copy of each stays.</source>
        <translation>En algunos grupos están seleccionadas todas las copias, así que no se conservaría ninguna.

¿Eliminar también todas las copias de esos archivos? Con «No» se conserva una copia de cada uno.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1293"/>
        <source>Nothing was removed: the removal record %1 cannot be written (%2).</source>
        <translation>No se eliminó nada: no se puede escribir el registro de eliminaciones %1 (%2).</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1306"/>
        <location filename="../../src/results/ResultForm.cpp" line="1576"/>
        <source>Removing files</source>
        <translation>Eliminando archivos</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1308"/>
        <location filename="../../src/results/ResultForm.cpp" line="1578"/>
        <source>Removing the selected files…</source>
        <translation>Eliminando los archivos seleccionados…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1385"/>
        <source>the removal record cannot be written: %1</source>
        <translation>no se puede escribir el registro de eliminaciones: %1</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1440"/>
        <source>The cloud service did not remove it.</source>
        <translation>El servicio en la nube no eliminó el archivo.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1444"/>
        <source>The file changed after the scan.</source>
        <translation>El archivo cambió después del análisis.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1446"/>
        <source>No other copy of it would be left.</source>
        <translation>No quedaría ninguna otra copia.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1448"/>
        <source>Its content no longer matches the copy that stays.</source>
        <translation>Su contenido ya no coincide con la copia que se conserva.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1450"/>
        <source>Not everything in it has a copy in the folder that stays.</source>
        <translation>No todo su contenido tiene copia en la carpeta que se conserva.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1452"/>
        <source>Every copy of its group was selected; this one stays.</source>
        <translation>Se seleccionaron todas las copias del grupo; esta se conserva.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1459"/>
        <source>The item is not a file.</source>
        <translation>El elemento no es un archivo.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1461"/>
        <source>The item is not a directory.</source>
        <translation>El elemento no es una carpeta.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1463"/>
        <source>Failed to move the file.</source>
        <translation>No se pudo mover el archivo.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1469"/>
        <source>Permission denied. Please check the file&apos;s access rights.</source>
        <translation>Permiso denegado. Compruebe los permisos de acceso del archivo.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1471"/>
        <source>The file is currently in use and cannot be deleted.</source>
        <translation>El archivo está en uso y no se puede eliminar.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1473"/>
        <source>Failed to move the file to the recycle bin.</source>
        <translation>No se pudo mover el archivo a la Papelera de reciclaje.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1476"/>
        <source>An unknown error occurred while deleting the file.</source>
        <translation>Se produjo un error desconocido al eliminar el archivo.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1559"/>
        <source>Nothing was removed: every selected file is the last copy of its group.</source>
        <translation>No se eliminó nada: cada archivo seleccionado es la última copia de su grupo.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1633"/>
        <source>Failed to delete the files. </source>
        <translation>No se pudieron eliminar los archivos. </translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1697"/>
        <source>Incomplete scan</source>
        <translation>Análisis incompleto</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultForm.cpp" line="1698"/>
        <source>This scan could not complete the image matching process due to &lt;br&gt;memory and disk space limitations. Please delete duplicate files&lt;br&gt;or select fewer folders and try again. Ensure at least 1GB of &lt;br&gt;memory and 1GB of free space on the system drive is available. &lt;br&gt;</source>
        <translation>Este análisis no pudo completar la comparación de imágenes por falta de &lt;br&gt;memoria y espacio en disco. Elimine archivos duplicados&lt;br&gt;o seleccione menos carpetas e inténtelo de nuevo. Asegúrese de disponer de al menos &lt;br&gt;1 GB de memoria y 1 GB de espacio libre en la unidad del sistema. &lt;br&gt;</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Hard Link</source>
        <translation>Reemplazar por enlace duro</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Reflink (Copy-on-Write)</source>
        <translation>Reemplazar por reflink (copia en escritura)</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by Symbolic Link</source>
        <translation>Reemplazar por enlace simbólico</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultMenus.cpp"/>
        <source>Replace by links…</source>
        <translation>Reemplazar por enlaces…</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>A folder is not replaced by a link; only files are.</source>
        <translation>Una carpeta no se reemplaza por un enlace; solo los archivos.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>No copy that stays is on the same drive, as a hard link needs.</source>
        <translation>Ninguna copia que se conserva está en la misma unidad, como requiere un enlace duro.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>No copy that stays is on the same drive, as a reflink needs.</source>
        <translation>Ninguna copia que se conserva está en la misma unidad, como requiere un reflink.</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>The file system cannot clone files (reflink).</source>
        <translation>El sistema de archivos no puede clonar archivos (reflink).</translation>
    </message>
    <message>
        <location filename="../../src/results/ResultRemovalRun.cpp"/>
        <source>The copy that stays changed while the link was made.</source>
        <translation>La copia que se conserva cambió mientras se creaba el enlace.</translation>
    </message>
    <message>
        <source>Export as CSV…</source>
        <translation>Exportar como CSV…</translation>
    </message>
    <message>
        <source>Write every group as a table (CSV) for spreadsheets and scripts</source>
        <translation>Escribir todos los grupos en una tabla (CSV) para hojas de cálculo y scripts</translation>
    </message>
</context>
<context>
    <name>ScanConfigCheck</name>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="48"/>
        <source>The minimum file size %1 KB is outside %2 to %3 KB.</source>
        <translation>El tamaño mínimo de archivo %1 KB está fuera del intervalo de %2 a %3 KB.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="51"/>
        <source>The maximum file size %1 MB is outside %2 to %3 MB.</source>
        <translation>El tamaño máximo de archivo %1 MB está fuera del intervalo de %2 a %3 MB.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="60"/>
        <source>The minimum file size %1 KB is not below the maximum file size %2 MB, so no file would be scanned.</source>
        <translation>El tamaño mínimo de archivo %1 KB no es menor que el máximo %2 MB, por lo que no se analizaría ningún archivo.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="69"/>
        <source>The similarity threshold %1% is outside %2% to %3%.</source>
        <translation>El umbral de similitud %1% está fuera del intervalo de %2% a %3%.</translation>
    </message>
    <message>
        <location filename="../../src/engine/ScanConfigCheck.cpp" line="74"/>
        <source>The feature similarity threshold %1% is outside %2% to %3%.</source>
        <translation>El umbral de similitud de características %1% está fuera del intervalo de %2% a %3%.</translation>
    </message>
</context>
<context>
    <name>Selection</name>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="20"/>
        <source>Scan method</source>
        <translation>Método de análisis</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="26"/>
        <source>Randomly read parts of the file for comparison to improve scanning efficiency</source>
        <translation>Comparar partes de cada archivo elegidas al azar para analizar más rápido</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="33"/>
        <source>Read the entire file contents to improve accuracy</source>
        <translation>Leer el contenido completo del archivo para mayor precisión</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="40"/>
        <source>Files with the same name and size</source>
        <translation>Archivos con el mismo nombre y tamaño</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="50"/>
        <source>Select duplicates for removal following preset rules below</source>
        <translation>Seleccionar duplicados para eliminar según las reglas siguientes</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="56"/>
        <source>Select newest duplicates for removal</source>
        <translation>Seleccionar los duplicados más recientes</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="63"/>
        <source>Select oldest duplicates for removal</source>
        <translation>Seleccionar los duplicados más antiguos</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="70"/>
        <source>Select duplicates for removal by filename</source>
        <translation>Seleccionar los duplicados según el nombre de archivo</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="77"/>
        <source>Select duplicates for removal from prioritized location</source>
        <translation>Seleccionar los duplicados de las ubicaciones prioritarias</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="117"/>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="122"/>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="132"/>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="139"/>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="163"/>
        <source>The larger the value, the higher priority to delete. Double click to change the value and it&apos;s priority.</source>
        <translation>Cuanto mayor sea el valor, mayor prioridad para eliminar. Haga doble clic en el valor para cambiar la prioridad.</translation>
    </message>
    <message>
        <location filename="../../src/preferences/Selection.ui" line="179"/>
        <source>Scanning duplicate directories</source>
        <translation>Buscar también carpetas duplicadas</translation>
    </message>
</context>
<context>
    <name>TCloudFolderDialog</name>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="49"/>
        <source>Select Folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="53"/>
        <source>Check the folders to scan in %1. A checked folder includes everything inside it.</source>
        <translation>Marque las carpetas que desea analizar en %1. Una carpeta marcada incluye todo su contenido.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="69"/>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="169"/>
        <source>Network Request Error</source>
        <translation>Error en la solicitud de red</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="170"/>
        <source>The network request failed. Please log in again to re-authorize your account.</source>
        <translation>La solicitud de red falló. Vuelva a iniciar sesión para autorizar de nuevo su cuenta.</translation>
    </message>
    <message>
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="179"/>
        <source>Loading folders…</source>
        <translation>Cargando carpetas…</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/mainwindow/TCloudFolderDialog.cpp" line="179"/>
        <source>%n folder(s) chosen</source>
        <translation>
            <numerusform>%n carpeta seleccionada</numerusform>
            <numerusform>%n carpetas seleccionadas</numerusform>
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
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Hide from results</source>
        <translation>Ocultar de los resultados</translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="83"/>
        <source>%n copies</source>
        <translation>
            <numerusform>%n copia</numerusform>
            <numerusform>%n copias</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../../src/results/GroupRowDelegate.cpp" line="85"/>
        <source>%n selected</source>
        <translation>
            <numerusform>%n seleccionada</numerusform>
            <numerusform>%n seleccionadas</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="149"/>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="149"/>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="151"/>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <location filename="../../src/results/TImageModel.cpp" line="153"/>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>In a protected folder: this copy is always kept and cannot be selected.</source>
        <translation>En una carpeta protegida: esta copia siempre se conserva y no se puede seleccionar.</translation>
    </message>
</context>
<context>
    <name>TOpenSaveThread</name>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="223"/>
        <source>The project file could not be opened.</source>
        <translation>No se pudo abrir el archivo de proyecto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="225"/>
        <source>The project file is damaged or incomplete.</source>
        <translation>El archivo de proyecto está dañado o incompleto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="227"/>
        <source>This file is not a project file of this program.</source>
        <translation>Este archivo no es un archivo de proyecto de este programa.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="229"/>
        <source>The project file contains invalid data and was not opened.</source>
        <translation>El archivo de proyecto contiene datos no válidos y no se abrió.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="231"/>
        <source>None of the duplicate groups in this project exist any more.</source>
        <translation>Ya no existe ninguno de los grupos de duplicados de este proyecto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="233"/>
        <source>The project file could not be saved.</source>
        <translation>No se pudo guardar el archivo de proyecto.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="235"/>
        <source>The operation was cancelled.</source>
        <translation>Se canceló la operación.</translation>
    </message>
    <message>
        <location filename="../../src/fileops/TOpenSaveThread.cpp" line="237"/>
        <source>Unknown error.</source>
        <translation>Error desconocido.</translation>
    </message>
</context>
<context>
    <name>TPieChart</name>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="189"/>
        <source>Images</source>
        <translation>Imágenes</translation>
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
        <translation>Carpetas</translation>
    </message>
    <message>
        <location filename="../../src/results/TPieChart.cpp" line="199"/>
        <source>Others</source>
        <translation>Otros</translation>
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
        <translation>Protegida: no se selecciona ni se elimina nada de esta carpeta. Haga clic para quitar la protección.</translation>
    </message>
    <message>
        <source>Protect this folder: nothing in it will be selected or removed.</source>
        <translation>Proteger esta carpeta: no se seleccionará ni eliminará nada de su interior.</translation>
    </message>
</context>
<context>
    <name>ProtectedFolderList</name>
    <message>
        <source>Protected folders</source>
        <translation>Carpetas protegidas</translation>
    </message>
    <message>
        <source>Nothing in these folders is ever selected or removed. Their copies still count as the ones that stay.</source>
        <translation>Nunca se selecciona ni se elimina nada de estas carpetas. Sus copias siguen contando como las que se quedan.</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
</context>
</TS>
