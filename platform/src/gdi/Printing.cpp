// Printing: the device context of the default printer, documents and pages.
// https://learn.microsoft.com/windows/win32/printdocs/printing-and-print-spooler-functions
#include "platform/sim/Printer.h"
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/DeviceContext.h"

#include <windows.h>

using namespace platform;

namespace {

/// What lies between StartDocW and EndDoc.
struct PrinterDc : DeviceContext {
    PrinterDc(Graphics& graphics, const Printer::Device& printer, const std::shared_ptr<Image>& paper)
        : DeviceContext(graphics, paper, {0, 0}, Region(paper->Bounds()), nullptr)
    {
        device = {printer.dpi, printer.page};
    }
    std::optional<Printer::Document> document;
    bool onPage = false;
    std::size_t textsBefore = 0;
};

std::shared_ptr<PrinterDc> FindPrinter(HDC dc)
{
    return std::dynamic_pointer_cast<PrinterDc>(FindDc(dc));
}

}  // namespace

/// Only the default printer is asked for, by the driver and the name that the profile gave.
HDC WINAPI CreateDCW(LPCWSTR driver, LPCWSTR device, LPCWSTR port, const DEVMODEW* mode)
{
    SIM_CALL(nullptr, ERROR_INVALID_PRINTER_NAME, driver, device, port, mode);
    SimPc& pc = SimPc::Current();
    const auto& printer = pc.Get<Printer>().Default();
    if (!printer || !device || printer->name != device)
        return pc.Fail(ERROR_INVALID_PRINTER_NAME, HDC{});
    return OpenObject<HDC>(
        std::make_shared<PrinterDc>(pc.Get<Graphics>(), *printer, std::make_shared<Image>(printer->page.cx, printer->page.cy)));
}

int WINAPI StartDocW(HDC dc, const DOCINFOW* info)
{
    SIM_CALL(SP_ERROR, ERROR_PRINT_CANCELLED, dc, info);
    const auto printer = FindPrinter(dc);
    if (!printer || !info || printer->document)
        return SP_ERROR;
    printer->document.emplace();
    printer->document->name = info->lpszDocName ? info->lpszDocName : u"";
    return 1;
}

int WINAPI StartPage(HDC dc)
{
    SIM_CALL(SP_ERROR, ERROR_PRINT_CANCELLED, dc);
    const auto printer = FindPrinter(dc);
    if (!printer || !printer->document || printer->onPage)
        return SP_ERROR;
    printer->onPage = true;
    printer->textsBefore = SimPc::Current().Get<Graphics>().Texts().size();
    return 1;
}

int WINAPI EndPage(HDC dc)
{
    SIM_CALL(SP_ERROR, ERROR_PRINT_CANCELLED, dc);
    const auto printer = FindPrinter(dc);
    if (!printer || !printer->onPage)
        return SP_ERROR;
    printer->onPage = false;
    auto& page = printer->document->pages.emplace_back();
    const auto& texts = SimPc::Current().Get<Graphics>().Texts();
    for (std::size_t index = printer->textsBefore; index < texts.size(); ++index)
        page.push_back({texts[index].text, {texts[index].cell.left, texts[index].cell.top}});
    return 1;
}

int WINAPI EndDoc(HDC dc)
{
    SIM_CALL(SP_ERROR, ERROR_PRINT_CANCELLED, dc);
    const auto printer = FindPrinter(dc);
    if (!printer || !printer->document || printer->onPage)
        return SP_ERROR;
    SimPc::Current().Get<Printer>().Print(std::move(*printer->document));
    printer->document.reset();
    return 1;
}

int WINAPI AbortDoc(HDC dc)
{
    SIM_NOTE(dc);
    const auto printer = FindPrinter(dc);
    if (!printer || !printer->document)
        return SP_ERROR;
    printer->document.reset();
    printer->onPage = false;
    return 1;
}
