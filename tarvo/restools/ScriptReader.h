#pragma once

#include "tarvo/restools/Resources.h"
#include "tarvo/restools/ScriptStatements.h"

#include <functional>
#include <string>

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
    void ReadMenu(const CScriptLine& head);
    void ReadToolbar(const CScriptLine& head);
    void ReadStringTable();
    CResText ReadAloneText();

    // ScriptDialogs.cpp
    void ReadDialog(const CScriptLine& head, CResText type);
    bool ReadDialogHead(CResDialog& dialog);
    CResText ReadStyle();
    void ReadDialogBody(CResDialog& dialog);
    void ReadControl(CResDialog& dialog);

    CTextArena& Keep() { return m_resources.m_keep; }
    bool SkipToBegin();
    CResText WithoutSpaces(std::u16string_view text);
    CResText Numbered(std::u16string_view prefix, unsigned number);
    void Log(std::u16string_view what, std::u16string_view line);

    CResources& m_resources;
    std::u16string& m_log;
    std::function<bool(std::u16string_view)> m_isWanted;
    CScriptLines m_lines;
    bool m_wanted;
};
