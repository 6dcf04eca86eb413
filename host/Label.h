// Label: the stock control that shows a text.
#pragma once

#include "host/StockControl.h"

namespace host {

/// A "Static" window that shows whole lines only. The letter after a single "&" in the caption is its access key and goes to the next
/// control in tab order.
class Label final : public StockControl {
public:
    [[nodiscard]] base::StringView Kind() const override { return TEXT("Label"); }
    [[nodiscard]] const base::String& Caption() const { return caption_; }
    void Caption(base::StringView caption);
    [[nodiscard]] base::String AccessKey() const override;
    [[nodiscard]] AccessibleFacts Accessibility() override;

private:
    [[nodiscard]] SystemWindow Describe() const override;
    /// At least one line of its font high, however low the place.
    [[nodiscard]] RECT WindowRect(RECT place) const override;
    void ReadProperties(const PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) override;

    base::String caption_;
};

}  // namespace host
