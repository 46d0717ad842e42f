#!/usr/bin/env bash
# Builds the Debian package and checks it as a user's machine would meet it: the desktop entry
# and the AppStream data validate, lintian finds no error, and the unpacked package runs:
# its tovra-ctl answers help and its client shows a tray icon under Xvfb (trayer as the host,
# the demo daemon of the build tree behind it), with the window class its desktop entry names.
# Usage: scripts/package-check.sh [BUILD_DIR]   (the tree must be configured; default build)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
work=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
fail() { echo "FAIL: $*" >&2; [[ -f $work/client.log ]] && tail -n 20 "$work/client.log" >&2; exit 1; }
wait_for() {
    local deadline=$(( SECONDS + $1 )); shift
    until "$@"; do (( SECONDS < deadline )) || return 1; sleep 0.1; done
}
for tool in cpack dpkg-deb lintian desktop-file-validate appstreamcli Xvfb trayer xdotool xwininfo; do
    command -v "$tool" >/dev/null || fail "$tool is not installed (scripts/install-deps.sh installs it)"
done

cmake --build "$build" --parallel "$(nproc)" --target tovra tovra-ctl tovra_package_data tovra-demo-daemon
rm -f "$build"/tovra_*.deb
(cd "$build" && cpack -G DEB >/dev/null) || fail "cpack failed"
debs=("$build"/tovra_*.deb)
[[ ${#debs[@]} -eq 1 && -f ${debs[0]} ]] || fail "expected one package in $build, found: ${debs[*]}"
deb=${debs[0]}
echo "package: $deb, $(stat -c %s "$deb") bytes, installed size $(dpkg-deb -f "$deb" Installed-Size) KiB"
echo "depends: $(dpkg-deb -f "$deb" Depends)"

root=$work/root
dpkg-deb -x "$deb" "$root"
desktop=$root/usr/share/applications/com.tovra.vpn.desktop
metainfo=$root/usr/share/metainfo/com.tovra.vpn.metainfo.xml

# desktop-file-utils before 0.27 predates desktop entry 1.5 and so rejects SingleMainWindow;
# there the rest of the entry is validated as 1.4.
echo "== desktop-file-validate"
validator=$(dpkg-query -W -f='${Version}' desktop-file-utils 2>/dev/null || echo 0)
if dpkg --compare-versions "$validator" lt 0.27; then
    sed -e 's/^Version=1\.5$/Version=1.4/' -e 's/^SingleMainWindow=/X-SingleMainWindow=/' "$desktop" \
        >"$work/com.tovra.vpn.desktop"
    desktop-file-validate "$work/com.tovra.vpn.desktop" || fail "desktop-file-validate"
else
    desktop-file-validate "$desktop" || fail "desktop-file-validate"
fi
echo "== appstreamcli validate --no-net"
appstreamcli validate --no-net "$metainfo" || fail "appstreamcli validate"
appstreamcli validate-tree --no-net "$root" || fail "appstreamcli validate-tree"
# The screenshots it names are pictures the end-to-end tests take (published from there).
if [[ -d $build/e2e-screenshots ]]; then
    for picture in $(grep -o 'screenshots/[^<]*\.png' "$metainfo" | sed 's|screenshots/||'); do
        [[ -n $(find "$build/e2e-screenshots" -name "$picture" -size +0) ]] \
            || fail "the end-to-end tests wrote no $picture"
    done
fi
echo "== lintian"
lintian --fail-on error --allow-root "$deb" || fail "lintian reports errors"

echo "== installed tovra-ctl"
"$root/usr/bin/tovra-ctl" help | grep -q '^  fetchStatus$' || fail "the installed tovra-ctl help lists no operations"

echo "== installed client"
mkdir -p "$work/config/Tovra" "$work/runtime"
chmod 700 "$work/runtime"
# Its abstract socket alone, and never reset: as the end-to-end harness does, so that another
# X server on this machine cannot take or remove its display meanwhile.
Xvfb -displayfd 5 -screen 0 1024x600x24 -nolisten tcp -nolisten unix -noreset 5>"$work/display" \
    2>"$work/xvfb.log" &
pids+=($!)
wait_for 10 test -s "$work/display" || fail "Xvfb did not start"
export DISPLAY=":$(head -n1 "$work/display")" QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY
trayer --edge top --align right --widthtype request --height 28 --SetDockType true \
    --transparent false >"$work/trayer.log" 2>&1 &
pids+=($!)
wait_for 20 xdotool search --class trayer >/dev/null || fail "trayer did not start: $(tail -n 3 "$work/trayer.log")"
socket=$work/control.sock
"$build/demo/tovra-demo-daemon" --socket "$socket" >"$work/daemon.log" 2>&1 &
pids+=($!)
wait_for 10 grep -qs "listening on" "$work/daemon.log" || fail "demo daemon did not start"
printf '[window]\nshowOnLaunch=false\n' >"$work/config/Tovra/TovraVPN.ini"
wm_class=$(sed -n 's/^StartupWMClass=//p' "$desktop")
start_ns=$(date +%s%N)
XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime TOVRA_CONTROL_SOCKET=$socket \
    "$root/usr/bin/tovra" >"$work/client.log" 2>&1 &
pids+=($!)
# The icon: a small window of the client embedded in the panel, of the class the entry names.
icon_shown() { xwininfo -root -tree 2>/dev/null | grep -qE "\(\"tovra\" \"$wm_class\"\) +[0-9]{1,2}x[0-9]{1,2}\+"; }
wait_for 20 icon_shown || fail "the installed client showed no tray icon of class $wm_class"
echo "installed client: tray icon after $(( ($(date +%s%N) - start_ns) / 1000000 )) ms"
echo "package check passed"
