#!/usr/bin/env bash
# release.sh VERSION: all that a release needs but the commit: version, changelog, pictures, every check, packages.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
version=${1:?VERSION}
[[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ ]] || { echo "Not a version: $version" >&2; exit 1; }
[[ -z $(git status --porcelain) ]] || { echo "Commit what is open first." >&2; exit 1; }
grep -qx '## \[Unveröffentlicht\]' CHANGELOG.md || { echo "CHANGELOG.md names nothing that is unreleased." >&2; exit 1; }

sed -i "s/^## \[Unveröffentlicht\]$/## [$version] - $(date -u +%F)/" CHANGELOG.md
sed -i -E "s/^(project\(bogenwerker VERSION )[0-9.]+/\1$version/" CMakeLists.txt
./test release sanitize clang fuzz lint
cmake --build build/release --target screenshots
ls -l build/release/packages/*.deb
echo "Look at git diff (pictures too), commit, tag v$version, and try the packages: packaging/try.sh bookworm"
