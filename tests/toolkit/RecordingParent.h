/// @file
/// A window that writes down what its children tell it, and may answer by a function of the test.
#pragma once

#include <algorithm>
#include <functional>
#include <vector>

#include "vapp/toolkit/CWnd.h"

/// A created window without a parent of its own.
class RecordingParent : public CWnd {
public:
    RecordingParent() { Create(nullptr, 1, {0, 0, 400, 300}); }
    ~RecordingParent() override { DestroyWindow(); }

    std::vector<Notification> heard;
    std::vector<NotifyListItem> items;  ///< those of kind cnListItemChanged, whole
    std::function<bool(Notification&, LRESULT&)> answer;

    [[nodiscard]] int Count(UINT code) const {
        return static_cast<int>(std::count_if(heard.begin(), heard.end(),
                                              [code](const Notification& one) { return one.code == code; }));
    }
    void Forget() {
        heard.clear();
        items.clear();
    }

protected:
    bool OnNotify(Notification& notification, LRESULT& result) override {
        heard.push_back(notification);
        if (notification.code == cnListItemChanged) {
            items.push_back(static_cast<NotifyListItem&>(notification));
        }
        return answer && answer(notification, result);
    }
};
