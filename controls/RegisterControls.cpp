#include "controls/RegisterControls.h"

#include "controls/CheckBox/CheckBox.h"
#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/Frame.h"
#include "controls/TextBox/TextBox.h"

namespace controls {

void RegisterControls(host::ControlFactory& factory)
{
    factory.Register<Frame>(TEXT("Frame"));
    factory.Register<CommandButton>(TEXT("CommandButton"));
    factory.Register<CheckBox>(TEXT("CheckBox"));
    factory.Register<TextBox>(TEXT("TextBox"));
}

}  // namespace controls
