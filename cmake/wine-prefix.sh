#!/bin/bash
# wine-prefix.sh FOLDER: makes FOLDER/template, the Wine prefix that cmake/wine.sh copies for its slots.
#
# Called by wine.sh, which sets Wine's environment. Takes some ten seconds. The prefix is built under another
# name and renamed when complete, so an interrupted run leaves nothing that looks finished.
set -euo pipefail

root=$1
new=$root/template.new
windows=$new/drive_c/windows
builtins=/usr/lib/x86_64-linux-gnu/wine/x86_64-windows
export WINEPREFIX=$new LC_ALL=C.UTF-8
unset DISPLAY

# Faces that dialogs ask for and that are not here, and what stands in for them. Wine reads replacements
# only for a face that is missing.
east_asian=(Gulim 굴림 Dotum 돋움 Batang 바탕 "Malgun Gothic" "맑은 고딕"
  "MS UI Gothic" "MS PGothic" "ＭＳ Ｐゴシック" Meiryo "Meiryo UI" "Yu Gothic UI"
  SimSun 宋体 "Microsoft YaHei" "Microsoft YaHei UI" PMingLiU 新細明體 "Microsoft JhengHei" "Microsoft JhengHei UI")
east_asian_fixed=(GulimChe 굴림체 "MS Gothic" "ＭＳ ゴシック" NSimSun 新宋体 MingLiU)
western=(System "MS Sans Serif" "Microsoft Sans Serif" "MS Serif" "Small Fonts" "Segoe UI" Arial Verdana
  "Times New Roman")
western_fixed=("Lucida Console" Consolas "Courier New" Courier Fixedsys Terminal)

# The files behind them. The bitmap fonts beside tahoma.ttf stay out: they hold bars instead of Hangul.
fonts=(/usr/share/wine/fonts/{tahoma,tahomabd,marlett,symbol}.ttf
  /usr/share/fonts/truetype/wqy/wqy-microhei.ttc /usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf)

replacements() { # STAND-IN FACE...
  local stand_in=$1 face
  shift
  for face; do printf '"%s"="%s"\n' "$face" "$stand_in"; done
}

# Western faces borrow the East Asian characters that they lack (a REG_MULTI_SZ of file and face).
links() { # FACE...
  local face value
  value=$(printf 'wqy-microhei.ttc,WenQuanYi Micro Hei\0\0' | iconv -t UTF-16LE | od -An -v -tx1 | tr -d '\n')
  value=${value# }
  for face; do printf '"%s"=hex(7):%s\n' "$face" "${value// /,}"; done
}

# No window manager, no crash dialog (it would wait for a click), nothing written to the user's menus.
registry() {
  cat <<'REG'
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
REG
  replacements "WenQuanYi Micro Hei" "${east_asian[@]}"
  replacements "WenQuanYi Micro Hei Mono" "${east_asian_fixed[@]}"
  replacements Tahoma "${western[@]}"
  replacements "DejaVu Sans Mono" "${western_fixed[@]}"
  printf '\n[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\FontLink\\SystemLink]\n'
  links Tahoma "Tahoma Bold" "DejaVu Sans Mono" "${western[@]}" "${western_fixed[@]}"
}

stop_server() {
  timeout 15 "$WINESERVER" -k && timeout 15 "$WINESERVER" -w || true
} >/dev/null 2>&1

run_wine() { timeout 120 "$WINELOADER" "$@" </dev/null >>"$root/template.log" 2>&1 8>&-; }

failed() {
  trap - EXIT
  stop_server
  echo "wine-prefix.sh: the Wine prefix could not be made; see $root/template.log" >&2
  exit 1
}

exec 8>"$root/template.lock"
flock 8
# Another process may have made it while this one waited.
made=$root/template/made
if [ "$made" -nt "${BASH_SOURCE[0]}" ] && [ "$made" -nt /usr/share/wine/wine.inf ]; then
  exit 0
fi
trap failed EXIT
trap 'exit 1' INT TERM HUP

for font in "${fonts[@]}"; do
  [ -e "$font" ] || { echo "wine-prefix.sh: $font is missing; scripts/setup.sh installs it" >&2; exit 1; }
done

# What an interrupted run left behind may still have its server.
if [ -d "$new" ]; then
  stop_server
  rm -rf "$new"
fi
mkdir -p "$windows/Fonts" "$HOME"
: >"$root/template.log"
# Wine shall see the fonts below and none of the machine's own: pictures and sizes are the same everywhere.
echo '<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig/>' >"$FONTCONFIG_FILE"
ln -s "${fonts[@]}" "$windows/Fonts/"

run_wine wineboot -i
{ printf '\xff\xfe'; registry | sed 's/$/\r/' | iconv -f UTF-8 -t UTF-16LE; } >"$windows/temp/prefix.reg"
run_wine regedit /S 'C:\windows\temp\prefix.reg'
stop_server
grep -q '"Graphics"="null"' "$new/user.reg"

# Documents and the like must not point into anybody's home.
find "$new/drive_c/users" -type l -exec sh -c 'rm "$1" && mkdir "$1"' _ {} \;
# Wine copies its own DLLs into the prefix, 600 MB; links serve as well.
for file in "$windows"/system32/*; do
  builtin=$builtins/${file##*/}
  if [ -f "$file" ] && cmp -s "$file" "$builtin"; then
    ln -sf "$builtin" "$file"
  fi
done

rm -rf "$root/template"
: >"$new/made"
mv -T "$new" "$root/template"
trap - EXIT
