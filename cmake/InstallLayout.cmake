# Where an installation puts the program: the GNU install dirs, and under them the program's
# private folders. Every install rule names one of these variables, never a path of its own.
include(GNUInstallDirs)

# The recording task and any other program that only nightreel starts.
set(NIGHTREEL_INSTALL_LIBEXECDIR ${CMAKE_INSTALL_LIBEXECDIR}/nightreel)
# The libraries nightreel loads at run time (encoder, mixer): kept off the system's library
# path, so that no other program finds them and nightreel finds no other copy.
set(NIGHTREEL_INSTALL_LIBDIR ${CMAKE_INSTALL_LIBDIR}/nightreel)
# Files the program opens itself (the manual). Not under the doc folder: minimal systems
# leave that out, and the Help menu must still work.
set(NIGHTREEL_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/nightreel)

# The program finds its pieces by these paths from the installed bin folder: relative, so
# that an install under another prefix or DESTDIR still finds them.
function(nightreel_path_from_bin out dir)
    cmake_path(ABSOLUTE_PATH dir BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE)
    file(RELATIVE_PATH relative ${CMAKE_INSTALL_FULL_BINDIR} ${dir})
    set(${out} ${relative} PARENT_SCOPE)
endfunction()
nightreel_path_from_bin(task_from_bin ${NIGHTREEL_INSTALL_LIBEXECDIR})
nightreel_path_from_bin(libraries_from_bin ${NIGHTREEL_INSTALL_LIBDIR})
nightreel_path_from_bin(data_from_bin ${NIGHTREEL_INSTALL_DATADIR})
nightreel_path_from_bin(applications_from_bin ${CMAKE_INSTALL_DATADIR}/applications)
set(NIGHTREEL_LAYOUT_DEFINITIONS
    NIGHTREEL_TASK_FROM_BIN="${task_from_bin}"
    NIGHTREEL_LIBRARIES_FROM_BIN="${libraries_from_bin}"
    NIGHTREEL_DATA_FROM_BIN="${data_from_bin}"
    NIGHTREEL_APPLICATIONS_FROM_BIN="${applications_from_bin}")

# Installs the file that template (NAME.in) makes, as NAME, into destination (a folder under
# the prefix). Some files must name programs by absolute paths (desktop entries; D-Bus service
# files and systemd units likewise): in the template @NIGHTREEL_BINDIR@ and
# @NIGHTREEL_LIBEXECDIR@ stand for the folders of bin/ and of the private programs, filled in
# at install time, so that they are right under the prefix that `cmake --install` or CPack
# uses.
function(nightreel_install_with_paths template destination)
    cmake_path(GET template STEM LAST_ONLY name)
    set(made ${CMAKE_CURRENT_BINARY_DIR}/installed/${name})
    install(CODE "
        set(bindir \"${CMAKE_INSTALL_BINDIR}\")
        set(libexecdir \"${NIGHTREEL_INSTALL_LIBEXECDIR}\")
        cmake_path(ABSOLUTE_PATH bindir BASE_DIRECTORY \"\${CMAKE_INSTALL_PREFIX}\" NORMALIZE)
        cmake_path(ABSOLUTE_PATH libexecdir BASE_DIRECTORY \"\${CMAKE_INSTALL_PREFIX}\" NORMALIZE)
        file(READ \"${template}\" text)
        string(REPLACE \"@NIGHTREEL_BINDIR@\" \"\${bindir}\" text \"\${text}\")
        string(REPLACE \"@NIGHTREEL_LIBEXECDIR@\" \"\${libexecdir}\" text \"\${text}\")
        file(WRITE \"${made}\" \"\${text}\")
        file(INSTALL DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${destination}\" TYPE FILE
            FILES \"${made}\")
    ")
endfunction()
