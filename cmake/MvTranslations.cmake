# Catalogues of user-visible texts, one per target that shows texts, in every language listed.
#
# lupdate keeps translations/<catalogue>_<language>.ts in the source tree in step with the sources
# (it runs when a source of the catalogue changed, adds new texts as unfinished and drops texts
# that are gone), lrelease turns each .ts file into a .qm file under <build>/translations, where
# the tests and the demo of a build tree find them, and `install` puts the library's beside its
# other shared files. Locations are left out of the .ts files so that moving code does not touch
# them.
set(MV_LANGUAGES de fr)
set(MV_TRANSLATIONS_BUILD_DIR ${CMAKE_BINARY_DIR}/translations)
set(MV_TRANSLATIONS_INSTALL_DIR ${CMAKE_INSTALL_DATADIR}/MvTimeline/translations)

#     mv_add_translations(<catalogue> SOURCES <dirs or files> [INSTALL])
# Defines the target <catalogue>_translations (built by default) and sets <catalogue>_TS_FILES
# and <catalogue>_QM_FILES in the caller's scope.
function(mv_add_translations catalogue)
    cmake_parse_arguments(arg "INSTALL" "" "SOURCES" ${ARGN})
    set(ts_files)
    foreach(language ${MV_LANGUAGES})
        list(APPEND ts_files ${CMAKE_CURRENT_SOURCE_DIR}/${catalogue}_${language}.ts)
    endforeach()
    set_source_files_properties(${ts_files} PROPERTIES OUTPUT_LOCATION ${MV_TRANSLATIONS_BUILD_DIR})
    qt5_create_translation(qm_files ${arg_SOURCES} ${ts_files} OPTIONS -locations none -no-obsolete -silent)
    # The .ts files are outputs of lupdate, but they are sources too: `make clean` must keep them.
    set_property(DIRECTORY PROPERTY CLEAN_NO_CUSTOM ON)
    add_custom_target(${catalogue}_translations ALL DEPENDS ${qm_files})
    if(arg_INSTALL)
        install(FILES ${qm_files} DESTINATION ${MV_TRANSLATIONS_INSTALL_DIR})
    endif()
    set(${catalogue}_TS_FILES ${ts_files} PARENT_SCOPE)
    set(${catalogue}_QM_FILES ${qm_files} PARENT_SCOPE)
endfunction()
