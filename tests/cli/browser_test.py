"""browser_test.py TARVO: opens `tarvo rc compare --format html` in a browser and looks at what it shows.

A script is added to a copy of the page; it asks for what is visible, before and after a click on "only
differences", and writes it into the page, which the browser prints. Exit status 77 without chromium.
"""
import html
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import reports

PROBE = """<script>
function visible(selector) {
  return [...document.querySelectorAll(selector)].filter(e => e.checkVisibility()).map(e => e.innerText.trim());
}
const seen = {errors: []};
addEventListener("error", event => seen.errors.push(event.message));
seen.title = document.title;
seen.outside = performance.getEntriesByType("resource").map(e => e.name);
seen.headings = visible("summary");
seen.open = [...document.querySelectorAll("details[open] summary")].map(e => e.innerText.trim());
seen.findings = visible(".finding code");
document.getElementById("only").click();
seen.differences = visible("summary");
seen.rows = visible("details[open] tr td:first-child");
const result = document.createElement("pre");
result.id = "seen";
result.textContent = JSON.stringify(seen);
document.body.append(result);
</script>
</body>"""

EXPECTED = {
    "errors": [],
    "title": "Resource scripts compared",
    "outside": [],
    "headings": ["Dialog IDD_FIRST", "Dialog IDD_SECOND", "Strings"],
    "open": ["Dialog IDD_FIRST", "Strings"],
    "findings": ["control-text", "string-missing"],
    "differences": ["Dialog IDD_FIRST", "Strings"],
    "rows": ["IDC_COUNT", "IDS_FILES"],
}


def printed_by_browser(browser, page, profile):
    """The page as it is when its scripts have run; None where the browser does not start."""
    done = subprocess.run([browser, "--headless", "--no-sandbox", "--disable-gpu", f"--user-data-dir={profile}",
                           "--virtual-time-budget=5000", "--dump-dom", page.as_uri()],
                          capture_output=True, text=True, encoding="utf-8", errors="replace", timeout=90, check=False)
    return done.stdout if done.returncode == 0 and "</html>" in done.stdout else None


def main():
    browser = shutil.which("chromium")
    if not browser:
        reports.skip("there is no browser (chromium)")
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        text = reports.compare(sys.argv[1], folder, "html")
        empty, page = folder / "empty.html", folder / "page.html"
        empty.write_text("<!DOCTYPE html><title>x</title>", encoding="utf-8")
        page.write_text(text.replace("</body>", PROBE), encoding="utf-8")
        if printed_by_browser(browser, empty, folder / "profile") is None:
            reports.skip("the browser does not start here")
        shown = printed_by_browser(browser, page, folder / "profile") or ""
    found = re.search(r'<pre id="seen">(.*?)</pre>', shown, re.DOTALL)
    seen = json.loads(html.unescape(found[1])) if found else None
    if seen != EXPECTED:
        sys.exit(f"shown:    {json.dumps(seen, ensure_ascii=False)}\nexpected: {json.dumps(EXPECTED)}")


main()
