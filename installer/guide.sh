#!/usr/bin/env bash
# guide.sh GUIDE.md VERSION: the guide as one page, pictures included, for the program to open.
set -euo pipefail
source="$1" version="$2"
cd "$(dirname "$source")"

# The page's own links have the letters that lowdown leaves out of the ids of headings.
without_foreign_letters=':again; s/(href="#[^"]*)%[0-9A-F]{2}/\1/; t again'
page="$(lowdown -Thtml --out-no-smarty "$(basename "$source")" | sed -E "$without_foreign_letters")"
while read -r picture; do
    page="${page//src=\"$picture\"/src=\"data:image/png;base64,$(base64 -w0 "$picture")\"}"
done < <(grep -o 'src="[^"]*\.png"' <<<"$page" | cut -d'"' -f2 | sort -u)

cat <<END
<!DOCTYPE html>
<html lang="fr">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>Guide de Tarnwick $version</title>
<style>
body { font: 16px/1.5 "Segoe UI", sans-serif; max-width: 52em; margin: 2em auto; padding: 0 1em; }
h2 { margin-top: 2em; border-bottom: 1px solid #ccc; }
table { border-collapse: collapse; }
th, td { border: 1px solid #ccc; padding: .3em .6em; text-align: left; vertical-align: top; }
img { max-width: 100%; }
code { background: #f2f2f2; padding: 0 .2em; }
</style>
</head>
<body>
$page
</body>
</html>
END
