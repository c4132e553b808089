#!/bin/bash
# wine.sh PROG.exe ARGS | wine.sh --template | wine.sh --down.  Exit code = program's mod 256; 124 timeout; 98 heap check
# env: WINE_TEST_LANG=ko_KR.UTF-8  WINE_TEST_GFX=x11 (needs DISPLAY)  WINE_HEAPCHECK=1  WINE_TEST_TIMEOUT=60  WINE_SLOTS  WINE_TEST_DIR
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
WT=${WINE_TEST_DIR:-$here/../build/wine}; mkdir -p "$WT"; WT=$(cd "$WT" && pwd)
WINE=/usr/lib/wine/wine64; WINESERVER=/usr/lib/wine/wineserver64; BI=/usr/lib/x86_64-linux-gnu/wine/x86_64-windows
export WINELOADER=$WINE WINESERVER WINEARCH=win64 WINEDLLOVERRIDES='mscoree,mshtml=' FONTCONFIG_FILE=$WT/fonts.conf
export WINEDEBUG=${WINEDEBUG-fixme-all,err-winediag,err-systray}      # keep err: on; -all also hides "library X.dll not found"
LOC="env LOCPATH=$WT/locale LC_ALL=${WINE_TEST_LANG:-C.UTF-8}"
gfx=${WINE_TEST_GFX:-null}; hc=${WINE_HEAPCHECK:-0}; [ "$gfx" = null ] && unset DISPLAY
srv_k() { WINEPREFIX=$1 timeout 15 $WINESERVER -k; WINEPREFIX=$1 timeout 15 $WINESERVER -w; } >/dev/null 2>&1
names() { local to=$1 f; shift; for f; do printf '"%s"="%s"\n' "$f" "$to"; done; }
links() { local f; for f; do printf '"%s"=hex(7):%s\n' "$f" "$(printf 'wqy-microhei.ttc,WenQuanYi Micro Hei\0\0' | iconv -t UTF-16LE | od -An -v -tx1 | tr -d '\n' | sed 's/^ //;s/ /,/g')"; done; }
T=(System "MS Sans Serif" "Microsoft Sans Serif" "MS Serif" "Small Fonts" "Segoe UI" Arial Verdana "Times New Roman")
M=("Lucida Console" Consolas "Courier New" Courier Fixedsys Terminal)
reg() { cat <<'E'
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\Software\Wine]
"Version"="win10"
[HKEY_CURRENT_USER\Software\Wine\Drivers]
"Graphics"="null"
[HKEY_CURRENT_USER\Software\Wine\X11 Driver]
"Managed"="N"
[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000
[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\RunServices]
"winemenubuilder"=-
[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
E
  names "WenQuanYi Micro Hei" Gulim 굴림 Dotum 돋움 Batang 바탕 "Malgun Gothic" "맑은 고딕" "MS UI Gothic" "MS PGothic" "ＭＳ Ｐゴシック" Meiryo "Meiryo UI" "Yu Gothic UI" SimSun 宋体 "Microsoft YaHei" "Microsoft YaHei UI" PMingLiU 新細明體 "Microsoft JhengHei" "Microsoft JhengHei UI"
  names "WenQuanYi Micro Hei Mono" GulimChe 굴림체 "MS Gothic" "ＭＳ ゴシック" NSimSun 新宋体 MingLiU
  names Tahoma "${T[@]}"; names "DejaVu Sans Mono" "${M[@]}"
  printf '\n[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\FontLink\\SystemLink]\n'; links Tahoma "Tahoma Bold" "DejaVu Sans Mono" "${T[@]}" "${M[@]}"; }
template() ( set -e; exec 8>"$WT/tpl.lock"; flock 8; [ -e "$WT/tpl.ok" ] && exit 0          # once, 12-18 s
  rm -rf "$WT/tpl" "$WT"/slot* "$WT/locale"; mkdir -p "$WT/locale" "$WT/home"
  printf '<?xml version="1.0"?>\n<!DOCTYPE fontconfig SYSTEM "fonts.dtd">\n<fontconfig><cachedir>%s/fc</cachedir></fontconfig>\n' "$WT" >"$FONTCONFIG_FILE"  # no system fonts
  for l in ko_KR ja_JP zh_CN zh_TW ru_RU de_DE; do localedef -i $l -f UTF-8 "$WT/locale/$l.UTF-8"; done; ln -s /usr/lib/locale/C.utf8 "$WT/locale/"
  export WINEPREFIX=$WT/tpl HOME=$WT/home; unset DISPLAY; W="$WT/tpl/drive_c/windows"; mkdir -p "$W/Fonts"
  ln -s /usr/share/wine/fonts/{tahoma,tahomabd,marlett,symbol}.ttf /usr/share/fonts/truetype/wqy/wqy-microhei.ttc /usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf "$W/Fonts/"
  timeout 120 $LOC $WINE wineboot -i </dev/null >"$WT/boot.log" 2>&1 8>&-
  { printf '\xff\xfe'; reg | sed 's/$/\r/' | iconv -f UTF-8 -t UTF-16LE; } >"$WT/prefix.reg"
  timeout 60 $LOC $WINE regedit /S "Z:${WT//\//\\}\\prefix.reg" </dev/null >>"$WT/boot.log" 2>&1 8>&-; srv_k "$WINEPREFIX"
  find "$WT/tpl/drive_c/users" -type l -exec sh -c 'rm "$1" && mkdir "$1"' _ {} \;           # Documents etc. must not point into $HOME
  for f in "$W"/system32/*; do b=$BI/${f##*/}; if [ -f "$f" ] && [ -f "$b" ] && cmp -s "$f" "$b"; then ln -sf "$b" "$f"; fi; done  # 695 -> 84 MB
  grep -q '"Graphics"="null"' "$WT/tpl/user.reg"; : >"$WT/tpl.ok" )
case $1 in --template) template; exit;; --down) for p in "$WT"/slot*/; do srv_k "${p%/}"; done; exit 0;; esac
[ -e "$WT/tpl.ok" ] || template || exit 99
while :; do for s in $(seq "${WINE_SLOTS:-$(nproc)}"); do exec 9>"$WT/slot$s-$gfx-$hc.lock"; flock -n 9 && break 2; done; sleep 0.02; done
export WINEPREFIX=$WT/slot$s-$gfx-$hc; PIN="taskset -c $(( (s-1) % $(nproc) ))"               # one slot = one prefix = one CPU
if [ ! -e "$WINEPREFIX/ok" ]; then rm -rf "$WINEPREFIX"; cp -al "$WT/tpl" "$WINEPREFIX"; cp --remove-destination "$WT"/tpl/*.reg "$WINEPREFIX/"
  [ "$gfx" = null ] || sed -i 's/^"Graphics"="null"/"Graphics"="x11"/' "$WINEPREFIX/user.reg"
  [ "$hc" = 0 ] || printf '%s\n' '' '[System\\CurrentControlSet\\Control\\Session Manager]' '"GlobalFlag"=dword:000000f0' '' '[Software\\Microsoft\\Windows NT\\CurrentVersion\\AeDebug]' '"Debugger"=""' >>"$WINEPREFIX/system.reg"
  : >"$WINEPREFIX/ok"; fi
[ "$hc" = 0 ] || WINEDEBUG=$WINEDEBUG,warn+heap
$PIN timeout 15 $WINESERVER -p </dev/null >/dev/null 2>&1 9>&-                                # persistent; no-op if it runs
o=$(mktemp); trap 'rm -f "$o"' EXIT
$PIN timeout -k 5 "${WINE_TEST_TIMEOUT:-60}" $LOC $WINE "$@" </dev/null >"$o" 2>&1 9>&-; rc=$?; cat "$o"
case $rc in 124|137) echo "wine.sh: timeout, slot $s reset"; srv_k "$WINEPREFIX";; esac
[ "$hc" != 0 ] && grep -qE '(err|warn):heap:' "$o" && { echo "wine.sh: heap check failed"; rc=98; }
exit $rc
