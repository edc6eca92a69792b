// What shows a control of the program. A change of the control is only noted; the renderer has it shown when the event is over.
#pragma once
#include <functional>

#include "platform/control.h"

class ModelView;

// The renderer, as far as the widgets need it.
class UserEvents {
public:
    virtual void Run(const std::function<void()>& event) = 0;  // something that the user does; what it changes is on show afterwards
    virtual bool InEvent() const = 0;                          // one is being run
    virtual void UserActivates(Window& window) = 0;            // a window has come to the front of the screen
    virtual void SyncLater(ModelView& view) = 0;               // it has something to show
    virtual void TextChanged() = 0;                            // the text of a box has changed

protected:
    ~UserEvents() = default;
};

class ModelView : public ControlView {
public:
    ModelView(Control& control, UserEvents& events) : control_(control), events_(events) { control_.BindView(this); }
    ~ModelView() override { control_.BindView(nullptr); }
    ModelView(const ModelView&) = delete;
    ModelView& operator=(const ModelView&) = delete;

    void Changed(Property property) override;
    UserEvents& Events() const { return events_; }
    void Sync();  // shows what has changed since the last time

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
    UserEvents& events_;
    Changes changes_;
};
