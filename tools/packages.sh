# Debian 12 packages, sourced by ./run, ./test, ./build-deb and ./build-windows.

# What building and running the program takes.
build_packages=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-svg-dev libgl-dev qt6-translations-l10n zlib1g-dev
    qt6-webengine-dev
    pkg-config libxcb1-dev libxcb-xfixes0-dev libcups2-dev
    libasound2-dev libsdl2-mixer-dev timgm6mb-soundfont
    fonts-liberation2 dict-freedict-eng-hun dict-freedict-hun-eng
    libhunspell-dev hunspell-en-gb hunspell-en-us hunspell-hu wordnet-base scowl
    sox abcmidi
)
# What a virtual display takes.
display_packages=(xvfb openbox xdotool x11-utils xclip imagemagick procps)
# What the tests take besides.
test_packages=(
    libgtest-dev libgmock-dev clang-format
    xterm cups cups-client printer-driver-cups-pdf poppler-utils
)
# What the sanitizers, fuzzers, clang-tidy and the benchmarks take besides.
thorough_test_packages=(libbenchmark-dev libsqlite3-dev clang clang-tidy libclang-rt-14-dev)
# What making the Debian package takes besides.
deb_packages=(dpkg-dev file)
# What the tests of that package take besides.
deb_test_packages=(
    lintian desktop-file-utils appstream shared-mime-info libglib2.0-bin man-db
    debootstrap debian-archive-keyring
)
# What building for Windows takes besides.
windows_packages=(
    g++-mingw-w64-x86-64-posix dpkg-dev xz-utils icoutils debian-archive-keyring ca-certificates
    nsis imagemagick
)
# What the tests of that build take besides.
windows_test_packages=(wine64 googletest unzip)
