#!/usr/bin/env bash
# Builds the Debian package (Release) and leaves larkwells_<version>_<arch>.deb in the
# repository's root: install it with `apt-get install ./larkwells_*.deb`.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
launcher=()
if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
cmake -S . -B build-package -G Ninja -DCMAKE_BUILD_TYPE=Release -DLARKWELLS_TESTS=OFF "${launcher[@]}"
cmake --build build-package
rm -f build-package/larkwells_*.deb
(cd build-package && cpack)
cp build-package/larkwells_*.deb .
ls -l larkwells_*.deb
