# What makes the program at home on a desktop: its desktop entry, icon, AppStream metainfo
# and man page.

# The desktop entry names the program by its full path. The build puts one beside the
# program, from where the options dialog copies it into the desktop's autostart folder; the
# installed one goes to the applications folder.
set(NIGHTREEL_BINDIR "$<TARGET_FILE_DIR:nightreel>")
configure_file(${CMAKE_CURRENT_LIST_DIR}/nightreel.desktop.in
    ${CMAKE_CURRENT_BINARY_DIR}/nightreel.desktop.build @ONLY)
file(GENERATE OUTPUT $<TARGET_FILE_DIR:nightreel>/nightreel.desktop
    INPUT ${CMAKE_CURRENT_BINARY_DIR}/nightreel.desktop.build)
nightreel_install_with_paths(${CMAKE_CURRENT_LIST_DIR}/nightreel.desktop.in
    ${CMAKE_INSTALL_DATADIR}/applications)

# The icon: scalable, and rendered at the sizes that desktops without SVG support look for.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
set(icon ${CMAKE_CURRENT_LIST_DIR}/nightreel.svg)
install(FILES ${icon} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
set(icon_pngs)
foreach(size 16 22 24 32 48 64 128 256)
    set(png ${CMAKE_CURRENT_BINARY_DIR}/icons/${size}x${size}/nightreel.png)
    add_custom_command(
        OUTPUT ${png}
        COMMAND ${RSVG_CONVERT} --width=${size} --height=${size} --output=${png} ${icon}
        DEPENDS ${icon}
        COMMENT "Rendering the ${size}x${size} icon"
        VERBATIM)
    install(FILES ${png} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
    list(APPEND icon_pngs ${png})
endforeach()

# The man page, compressed as distributions ship them.
find_program(GZIP gzip REQUIRED)
set(man_page ${CMAKE_CURRENT_BINARY_DIR}/nightreel.1.gz)
add_custom_command(
    OUTPUT ${man_page}
    COMMAND ${GZIP} -9 --no-name --stdout ${PROJECT_SOURCE_DIR}/docs/nightreel.1 > ${man_page}
    DEPENDS ${PROJECT_SOURCE_DIR}/docs/nightreel.1
    COMMENT "Compressing the man page"
    VERBATIM)
install(FILES ${man_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

add_custom_target(nightreel-desktop-files ALL DEPENDS ${icon_pngs} ${man_page})

install(FILES ${CMAKE_CURRENT_LIST_DIR}/org.larkmoor.Nightreel.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
