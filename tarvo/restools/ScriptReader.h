#pragma once

#include "tarvo/restools/Resources.h"
#include "tarvo/restools/ScriptLines.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

/// Reads the lines of one decoded script into a `CResources`. One function per kind of resource, each
/// with its rule above it; whatever fits no rule is logged and passed over. Nothing calls itself, however
/// deep menus are nested.
class CScriptReader
{
public:
    /// \p isWanted tells for each LANGUAGE statement whether the resources behind it are read; \p all says
    /// that those before the first such statement are too.
    CScriptReader(CResources& resources, std::u16string& log, bool all,
                  std::function<bool(std::u16string_view)> isWanted);
    void Read();

private:
    // ScriptResources.cpp
    void ReadLanguage();
    bool ReadResource();
    void ReadSimple(CResBaseclass<CResSimple>& list, const CScriptLine& head, CScriptWords words);
    CResMenuItem ReadMenuItem(CScriptWords words);
    void ReadMenu(const CScriptLine& head);
    void ReadToolbar(const CScriptLine& head);
    void ReadStringTable();
    CResText ReadAloneText();

    // ScriptDialogs.cpp
    void ReadDialog(const CScriptLine& head, CResText type);
    bool ReadDialogHead(CResDialog& dialog);
    CResText ReadStyle();
    void ReadDialogBody(CResDialog& dialog);
    void ReadControl();

    CScriptArena& Keep() { return *m_resources.m_keep; }
    bool SkipToBegin();
    CResText WithoutSpaces(CResText text);
    CResText Numbered(std::u16string_view prefix, unsigned number);
    void Log(std::u16string_view what, std::u16string_view line);

    /// An expression as it was written and what became of it: the same few stand in many controls.
    struct Stripped
    {
        CResText text;
        CResText withoutSpaces;
    };

    CResources& m_resources;
    std::u16string& m_log;
    std::function<bool(std::u16string_view)> m_isWanted;
    CScriptLines m_lines;
    std::vector<CResDialogControl> m_controls; ///< of the dialog at hand, until their number is known
    std::array<Stripped, 16> m_stripped;
    bool m_wanted;
};
