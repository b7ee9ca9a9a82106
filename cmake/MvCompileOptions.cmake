# Compile settings shared by every target of the project.
function(mv_set_compile_options target)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS
        QT_NO_CAST_FROM_ASCII
        QT_USE_QSTRINGBUILDER
        QT_NO_URL_CAST_FROM_STRING
        QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual)
        if(MV_WERROR)
            target_compile_options(${target} PRIVATE -Werror)
        endif()
    elseif(MSVC)
        target_compile_options(${target} PRIVATE /W4 /permissive-)
    endif()
endfunction()

# A shared library of the project, with its export name Mv::<exportName>, its binary version and
# the headers a host includes, named one by one (internal headers and the in-memory model stay out):
#     mv_install_library(MvCore Core MvCore HEADERS MvPresenter.h ...)
function(mv_install_library target exportName folder)
    cmake_parse_arguments(PARSE_ARGV 3 arg "" "" "HEADERS")
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${exportName}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    if(UNIX AND NOT APPLE)
        # Installed side by side: each library finds its siblings next to itself.
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
    endif()
    add_library(Mv::${exportName} ALIAS ${target})
    install(TARGETS ${target} EXPORT MvTimelineTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(FILES ${arg_HEADERS} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
endfunction()
