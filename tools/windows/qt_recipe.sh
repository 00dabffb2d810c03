# The Qt that the Windows program is built with, sourced by build_qt.sh: which source, and which parts of it. What
# stands here and in the toolchain file decides which build in the cache fits, so a change of either builds anew.

# Debian's source package: name, version, SHA-256 of the .dsc file (which names the sums of all the others).
# The version is that of the Qt which Debian 12 installs, because its tools (moc, rcc, uic) run in this build.
qt_source="qt6-base 6.4.2+dfsg-10 1b4b5c8610a553d4211fa81e268b1a3b0a6339ae5444fdb7e60d7616da651970"
qt_version=6.4.2

qt_options=(
    -DCMAKE_BUILD_TYPE=MinSizeRel
    -DBUILD_SHARED_LIBS=OFF
    -DQT_QMAKE_TARGET_MKSPEC=win32-g++
    -DQT_BUILD_TESTS=OFF
    -DQT_BUILD_EXAMPLES=OFF
    # Nothing of the system under Windows is asked for these; Qt brings its own.
    -DFEATURE_system_zlib=OFF
    -DFEATURE_system_freetype=OFF
    -DFEATURE_system_png=OFF
    -DFEATURE_system_jpeg=OFF
    -DFEATURE_system_harfbuzz=OFF
    -DFEATURE_system_pcre2=OFF
    # What the program does without.
    -DINPUT_opengl=no
    -DFEATURE_concurrent=OFF
    -DFEATURE_dbus=OFF
    -DFEATURE_network=OFF
    -DFEATURE_openssl=OFF
    -DFEATURE_schannel=OFF
    -DFEATURE_sql=OFF
    -DFEATURE_ssl=OFF
    -DFEATURE_tabletevent=OFF
    -DFEATURE_vulkan=OFF
    -DFEATURE_xml=OFF
)
