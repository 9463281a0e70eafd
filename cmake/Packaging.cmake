# `cpack -G DEB` in the build folder makes nightreel_<version>_<arch>.deb of what
# `cmake --install` installs, under /usr.
set(CPACK_PACKAGE_NAME nightreel)
set(CPACK_PACKAGE_VENDOR "Larkmoor Systems")
set(NIGHTREEL_PACKAGE_MAINTAINER "Larkmoor Systems" CACHE STRING
    "Maintainer of the Debian package, as \"Name <address>\"")
set(CPACK_PACKAGE_CONTACT ${NIGHTREEL_PACKAGE_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "unattended recorder of audio at scheduled times")
set(CPACK_PACKAGE_DESCRIPTION
    "Nightreel 2000 works like a video recorder for sound: keep a list of programs (once or
on chosen weekdays) and it records the sound server's input at those times into WAV or MP3
files, with nobody at the machine. It also offers manual recordings, conversion to MP3
afterwards, mixer profiles, launches before and after a recording, a list of recordings
with two players, and guards against a full disk.")
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# The libraries that the programs link are found by dpkg-shlibdeps. Named here is only what
# is loaded at run time, which no tool can see: Qt's SQLite driver (the database), and the
# GStreamer elements that both players play through (playbin, audioconvert and volume in
# -base; scaletempo, audiopanorama, the wave and MP3 readers and the audio output in -good),
# which also read internet streams (HTTP, ICY, Ogg Vorbis), GIO's TLS for https streams, and
# Qt's SVG plug-in that draws the window's icon.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite, gstreamer1.0-plugins-base, \
gstreamer1.0-plugins-good, glib-networking, libqt6svg6")
# A sound server to record from, the mixer program that the options name by default, and
# the HLS reader (.m3u8 streams).
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "pulseaudio | pipewire-pulse, pavucontrol, gstreamer1.0-plugins-bad")

include(CPack)
