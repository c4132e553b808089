#include "cli/groups.h"
#include "cli/rc_script.h"
#include "cli/text.h"
#include "tarvo/restools/ExportIni.h"
#include "tarvo/restools/WritePairs.h"
#include "tarvo/restools/WriteStringList.h"
#include "tarvo/restools/WriteTree.h"

namespace cli
{
namespace
{
constexpr std::string_view encodings =
    "A script is UTF-16 or UTF-8 with its byte-order mark, or text in the ANSI code "
    "page (see --ansi), of at most 67108864 bytes.";

constexpr Operand file_operands[] = {{"FILE", Value::file, "the resource script; - reads standard input"}};
constexpr Operand two_files[] = {
    {"FILE1", Value::file, "the original script; - reads standard input"},
    {"FILE2", Value::file, "its translation; - reads standard input, but only one of the two can"}};
constexpr Operand two_texts[] = {{"TEXT1", Value::text, "the original text, as the script writes it"},
                                 {"TEXT2", Value::text, "its translation"}};

constexpr Option language_option = {
    "language", '\0', Value::text, "LANG_X",
    "reads only what follows a LANGUAGE statement with this word, in any letter case"};
constexpr Option language2_option = {"language2", '\0', Value::text, "LANG_X", "the same for FILE2"};
constexpr Option check_option = {"check", '\0', Value::choice, "none|percent|backslash|both|full",
                                 "how texts are held against each other: percent compares placeholders such "
                                 "as %d, backslash escapes such as "
                                 "\\n, both (the default) the two, full the whole texts"};

constexpr Option show_options[] = {language_option};
constexpr Option compare_options[] = {
    {"language1", '\0', Value::text, "LANG_X",
     "reads of FILE1 only what follows a LANGUAGE statement with this word, in any letter case"},
    language2_option,
    check_option,
    {"jobs", 'j', Value::text, "N", "compares N scripts of two folders at the same time; 1 is the default"},
    {"format", '\0', Value::choice, "text|json|sarif|junit|html",
     "text (the default) and json hold the report, sarif and junit each finding with its file, line and rule "
     "for "
     "build servers, html is one page that shows both scripts with the findings beside them"},
};
constexpr Option check_options[] = {check_option};
constexpr Option pairs_options[] = {
    {"quoted", '\0', Value::none, "", "writes \"text 1\"=\"text 2\" instead of columns"},
    {"language1", '\0', Value::text, "LANG_X",
     "reads of FILE1 only what follows a LANGUAGE statement with this word, in any letter case"},
    language2_option};
constexpr Option strings_options[] = {
    {"clean", '\0', Value::none, "",
     "takes every & out, makes \\n, \\t and \\r a space and \\\" a quote: what a spelling checker wants"},
    language_option};
constexpr Option tree_options[] = {{"ids-only", '\0', Value::none, "", "leaves out keywords and texts"},
                                   language_option};

constexpr Example show_examples[] = {
    {"every control that shows a picture", "tarvo rc show app.rc | grep '^control.*SS_BITMAP'"},
    {"a Korean script on an English machine", "tarvo rc show --ansi 949 app_kr.rc"},
};
constexpr Example compare_examples[] = {
    {"what a translator has broken", "tarvo rc compare app.rc app_kr.rc"},
    {"both languages stand in one script",
     "tarvo rc compare a.rc a.rc --language1 LANG_ENGLISH --language2 LANG_KOREAN"},
};
constexpr Example check_examples[] = {{"one text", "tarvo rc check '%d of %s' '%s/%d'"}};
constexpr Example pairs_examples[] = {{"a translation memory", "tarvo rc pairs app.rc app_kr.rc --quoted"}};
constexpr Example strings_examples[] = {
    {"checks the spelling", "tarvo rc strings app.rc --clean | aspell list"}};
constexpr Operand export_operands[] = {{"ENGLISH", Value::file, "the script that the module was built from"},
                                       {"TRANSLATED", Value::file, "the same script in another language"}};
constexpr Option export_options[] = {
    {"project", '\0', Value::text, "NAME",
     "the module's project name, written as PROJECT of GENERAL; must be given"},
    {"code-page", '\0', Value::page, "N",
     "the CODEPAGE of GENERAL; by default that of the language TRANSLATED names last"},
    {"language1", '\0', Value::text, "LANG_X",
     "reads of ENGLISH only what follows a LANGUAGE statement with this word, in any letter case"},
    {"language2", '\0', Value::text, "LANG_X", "the same for TRANSLATED"}};
constexpr Example export_examples[] = {
    {"a Korean language file out of two scripts",
     "tarvo rc export-ini a.rc a_kr.rc --project steel -o ctrl_steel_kr.ini"}};
constexpr Example tree_examples[] = {{"what a script holds", "tarvo rc tree app.rc --ids-only"}};

Result show(const Call& call)
{
    const Script script = read_script(call.operands[0], call.option("language"));
    return {Status::done, call.format == Format::json ? script_json(script) : script_text(script)};
}

Result check(const Call& call)
{
    const CString problem =
        CheckString(to_wide(call.operands[0]).c_str(), to_wide(call.operands[1]).c_str(), check_mode(call));
    const Status status = problem.IsEmpty() ? Status::done : Status::found;
    if (call.format == Format::json)
        return {status, JsonWriter().text(view(problem)).take()};
    return {status, problem.IsEmpty() ? std::nullopt : std::optional(to_utf8(view(problem)) + '\n')};
}

Result pairs(const Call& call)
{
    const auto [one, two] = read_scripts(call);
    CString text;
    WritePairs(one.resources, two.resources, text, call.option("quoted") != nullptr);
    return {Status::done, listing(call, text)};
}

Result strings(const Call& call)
{
    const Script script = read_script(call.operands[0], call.option("language"));
    CString text;
    WriteStringList(script.resources, text, call.option("clean") != nullptr);
    return {Status::done, listing(call, text)};
}

Result export_ini(const Call& call)
{
    const std::string* const project = call.option("project");
    if (project == nullptr)
        throw Failure{Status::usage, "rc export-ini", "--project NAME is missing"};
    const auto [one, two] = read_scripts(call);
    int page = call.page("code-page");
    if (page == 0)
        page = CodePageOfLanguage(two.languages.empty() ? nullptr : two.languages.back().GetString());
    XIni ini;
    ExportIni(one.resources, two.resources, to_wide(*project).c_str(), page, ini);
    return {Status::done, ini.Serialize()};
}

Result tree(const Call& call)
{
    const Script script = read_script(call.operands[0], call.option("language"));
    CString text;
    WriteTree(script.resources, text, call.option("ids-only") != nullptr);
    return {Status::done, listing(call, text)};
}

constexpr Command commands[] = {
    {"show", "prints everything that is read from a resource script", file_operands, show_options, encodings,
     "a line for each language, menu item, toolbar item, dialog, control, string and file, its kind first, "
     "then its "
     "columns separated by tabs: language WORD; menu NAME ID TEXT STYLE; toolbar NAME ID KEYWORD; dialog "
     "NAME TYPE "
     "CAPTION STYLE EXSTYLE; control DIALOG ID TYPE TEXT STYLE EXSTYLE HELP_ID; string ID TEXT; bitmap, png, "
     "icon, "
     "cursor NAME FILE.",
     "{\"read\":true, \"log\":LOG, \"languages\":[...], \"menus\":[{\"name\":N, \"items\":[{\"text\":T, "
     "\"id\":I,"
     "\"style\":S}]}], \"toolbars\":[{\"name\":N, \"items\":[{\"keyword\":K, \"id\":I}]}], \"dialogs\":[{"
     "\"name\":N,"
     "\"type\":T, \"style\":S, \"exstyle\":X, \"caption\":C, \"controls\":[{\"type\":T, \"id\":I, \"text\":X,"
     "\"style\":S,"
     "\"exstyle\":E, \"help_id\":H, \"number\":N}]}], \"strings\":[{\"id\":I, \"text\":T}], \"bitmaps\":[{"
     "\"name\":N,"
     "\"file\":F}], \"pngs\":[], \"icons\":[], \"cursors\":[]}; the log names every line that fits no rule.",
     show_examples, show},
    {"compare", "reports what a translated script has lost or changed", two_files, compare_options,
     "Holds a translation against its original: missing resources, controls and strings, other types and "
     "styles, "
     "another order, and texts whose placeholders or escapes no longer agree. Exit status 1 when there is a "
     "difference.\n"
     "Of two folders every script (.rc) below the first is compared with the one of the same relative path "
     "below the "
     "second; one that is missing there is a difference. The order of the output does not depend on --jobs.",
     "the report: a heading for each kind, below it a line for each resource and each difference.",
     "{\"report\":REPORT,\"log\":LOG}, the log of both scripts. For folders {\"files\":[{\"file\":PATH, "
     "\"report\":REPORT, \"log\":LOG, \"findings\":[{\"rule\":R, \"resource\":N, \"item\":I, \"line1\":L, "
     "\"line2\":L, \"text\":T}]}], \"missing\":[PATH]}.",
     compare_examples, compare_scripts},
    {"check", "compares the placeholders and escapes of two texts", two_texts, check_options,
     "Says what a translator has broken between two texts; exit status 1. When they agree there is no "
     "output.",
     "the problem and a line feed.", "the problem as one JSON text, empty when the texts agree.",
     check_examples, check},
    {"pairs", "lists the texts of a script beside their translations", two_files, pairs_options,
     "Lists each text of FILE1 that has a partner in FILE2, in the sections [DIALOG], [DIALOGEX], [MENU] and "
     "[STRINGTABLE]. Pairs without any text and repeated ones are left out.",
     "ID, tab, text 1, tab, text 2.", "{\"text\":LIST}", pairs_examples, pairs},
    {"strings", "lists the texts of a script", file_operands, strings_options,
     "Lists the texts of menus, dialogs and string tables.", "ID, tab, text, below headings.",
     "{\"text\":LIST}", strings_examples, strings},
    {"tree", "lists the resources of a script and their items", file_operands, tree_options,
     "Lists every resource by kind, with its items.",
     "headings, below them two spaces and a name or four spaces and an item's ID, tab, text.",
     "{\"text\":TREE}", tree_examples, tree},
    {"export-ini", "writes a language file from a script and its translation", export_operands,
     export_options,
     "Writes the texts of TRANSLATED as a host's language file, UTF-16LE: a section for each dialog of "
     "ENGLISH with "
     "its caption and its controls by their symbols, DIALOG for what several dialogs share, MENUSTR for "
     "menus. A "
     "control without a symbol of its own in its dialog is left out.",
     "the bytes of the language file, whatever the format.", "", export_examples, export_ini},

};
} // namespace

std::span<const Command> rc_commands() { return commands; }
} // namespace cli
