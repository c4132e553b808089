#include "tarvo/restools/ScriptStatements.h"

#include <string>

CScriptLine TakeStatement(CScriptLines& lines, BeginsNew beginsNew)
{
    CScriptLine statement = lines.At();
    std::u16string joined;
    for (lines.Take(); lines.Peek() && !beginsNew(lines.At().first); lines.Take())
    {
        if (joined.empty())
            joined = statement.text;
        joined += u' ';
        joined += lines.At().text;
    }
    if (!joined.empty())
    {
        statement.text = lines.Keep().Copy(joined);
        statement.words = CScriptWords(statement.text, WordSeparators::Standard, lines.Keep());
        statement.first = statement.words.Next();
    }
    return statement;
}
