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

    # Qt's own translations, under the names the language set-up loads ("qt_pt.qm"
    # is the European Portuguese catalogue). Each qt_xx.qm pulls in qtbase_xx.qm from
    # the same folder, so both are embedded.
    set(qt_translation_dir "")
    find_path(qt_translation_dir qt_fr.qm PATHS /usr/share/qt6/translations ${QT6_INSTALL_PREFIX}/translations
              NO_DEFAULT_PATH)
    if(qt_translation_dir)
        set(staged ${CMAKE_CURRENT_BINARY_DIR}/qt_translations)
        set(qt_qm_files "")
        foreach(lang IN LISTS VELTRINE_LANGUAGES)
            set(source_lang ${lang})
            if(lang STREQUAL "pt")
                set(source_lang pt_PT)
            endif()
            foreach(catalogue qt qtbase)
                set(from ${qt_translation_dir}/${catalogue}_${source_lang}.qm)
                if(NOT EXISTS ${from} AND lang STREQUAL "pt")
                    set(from ${qt_translation_dir}/${catalogue}_pt_BR.qm)
                endif()
                if(EXISTS ${from})
                    configure_file(${from} ${staged}/${catalogue}_${lang}.qm COPYONLY)
                    list(APPEND qt_qm_files ${staged}/${catalogue}_${lang}.qm)
                endif()
            endforeach()
        endforeach()
        qt_add_resources(${target} "veltrine_qt_translations"
            PREFIX "/translations/language"
            BASE ${staged}
            FILES ${qt_qm_files})
    endif()
endfunction()
