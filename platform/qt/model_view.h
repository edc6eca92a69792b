// What shows a control of the program. A change of the control is only noted; the renderer has it shown when the event is over.
#pragma once
#include "platform/control.h"

class ModelView : public ControlView {
public:
    explicit ModelView(Control& control) : control_(control) { control_.BindView(this); }
    ~ModelView() override { control_.BindView(nullptr); }
    ModelView(const ModelView&) = delete;
    ModelView& operator=(const ModelView&) = delete;

    void Changed(Property property) override;
    void Agree();  // shows what has changed since the last time

protected:
    class Changes {
    public:
        static Changes All() { return Changes(~0u); }
        Changes() = default;
        void Add(Property property) { bits_ |= Bit(property); }
        bool Any() const { return bits_ != 0; }
        bool Has(Property property) const { return (bits_ & Bit(property)) != 0; }
        bool HasOnly(Property property) const { return bits_ == Bit(property); }

    private:
        explicit Changes(unsigned bits) : bits_(bits) {}
        static unsigned Bit(Property property) { return 1u << static_cast<unsigned>(property); }
        unsigned bits_ = 0;
    };
    // Reads the control and never writes it.
    virtual void Show(Changes changes) = 0;

private:
    Control& control_;
    Changes changes_;
};
