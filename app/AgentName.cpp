#include "app/AgentName.h"

#include "app/helpers/Paths.h"

namespace app {

base::String DeriveAgentName(base::StringView utilityName)
{
    const auto blank = utilityName.find(TEXT(' '));
    const base::StringView word = blank == base::StringView::npos ? base::StringView() : utilityName.substr(0, blank);
    return helpers::IsValidFileName(word) ? base::String(word) : TEXT("Velmora");
}

}  // namespace app
