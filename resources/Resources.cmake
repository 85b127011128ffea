# Style sheet, pictures and translations compiled into a target.
set(VELTRINE_RESOURCE_DIR ${CMAKE_CURRENT_LIST_DIR})
set(VELTRINE_LANGUAGES en fr pt it de es ja)

function(veltrine_ts_file lang out)
    if(lang STREQUAL "en")
        set(${out} ${VELTRINE_RESOURCE_DIR}/translations/duplicate-finder_en.ts PARENT_SCOPE)
    else()
        set(${out} ${VELTRINE_RESOURCE_DIR}/translations/duplicate-finder-win_${lang}.ts PARENT_SCOPE)
    endif()
endfunction()

function(veltrine_add_resources target)
    qt_add_resources(${target} "veltrine_style"
        PREFIX "/resource"
        BASE ${VELTRINE_RESOURCE_DIR}
        FILES ${VELTRINE_RESOURCE_DIR}/Style.qss)

    # Pictures drawn by tools/render_images.py from the SVG sources in images/src,
    # reachable as ":/resource/<name>.png".
    file(GLOB pictures ${VELTRINE_RESOURCE_DIR}/images/*.png ${VELTRINE_RESOURCE_DIR}/images/*.svg)
    qt_add_resources(${target} "veltrine_images"
        PREFIX "/resource"
        BASE ${VELTRINE_RESOURCE_DIR}/images
        FILES ${pictures})

    set(ts_files "")
    foreach(lang IN LISTS VELTRINE_LANGUAGES)
        veltrine_ts_file(${lang} ts)
        list(APPEND ts_files ${ts})
    endforeach()
    file(GLOB_RECURSE translatable ${PROJECT_SOURCE_DIR}/src/*.cpp ${PROJECT_SOURCE_DIR}/src/*.h
                                   ${PROJECT_SOURCE_DIR}/src/*.ui)
    qt_add_translations(${target}
        TS_FILES ${ts_files}
        SOURCES ${translatable}
        RESOURCE_PREFIX "/translations/language"
        LRELEASE_OPTIONS -silent)

    # Qt's own translations, under the names the language set-up loads. Qt's qt_xx.qm
    # is only a catalogue of module files and fails to load when any of them is missing,
    # so the qtbase catalogue (dialog buttons, file dialogs) is embedded under that name.
    # "qt_pt.qm" is the European Portuguese one.
    get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
    execute_process(COMMAND ${qmake} -query QT_INSTALL_TRANSLATIONS
                    OUTPUT_VARIABLE qt_translation_dir OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(EXISTS "${qt_translation_dir}/qtbase_fr.qm")
        set(staged ${CMAKE_CURRENT_BINARY_DIR}/qt_translations)
        set(qt_qm_files "")
        foreach(lang IN LISTS VELTRINE_LANGUAGES)
            set(from ${qt_translation_dir}/qtbase_${lang}.qm)
            if(lang STREQUAL "pt")
                set(from ${qt_translation_dir}/qtbase_pt_PT.qm)
                if(NOT EXISTS ${from})
                    set(from ${qt_translation_dir}/qtbase_pt_BR.qm)
                endif()
            endif()
            if(EXISTS ${from})
                configure_file(${from} ${staged}/qt_${lang}.qm COPYONLY)
                list(APPEND qt_qm_files ${staged}/qt_${lang}.qm)
            endif()
        endforeach()
        qt_add_resources(${target} "veltrine_qt_translations"
            PREFIX "/translations/language"
            BASE ${staged}
            FILES ${qt_qm_files})
    endif()
endfunction()
