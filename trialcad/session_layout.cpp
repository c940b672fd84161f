#include "session_layout.h"

namespace {

constexpr int kBarHeight = 78;
constexpr int kMargin = 12;
constexpr int kLabelHeight = 20;
constexpr POINT kSmallest = {560, 420};

}  // namespace

SessionLayout layOutSession(const RECT& client, UINT dpi) {
    const auto scaled = [dpi](int pixels) { return MulDiv(pixels, static_cast<int>(dpi), 96); };
    const LONG margin = scaled(kMargin);
    const LONG label = scaled(kLabelHeight);
    const LONG bar = scaled(kBarHeight);
    const LONG left = client.left + margin;
    const LONG right = client.right - margin;
    const LONG bottom = client.bottom - margin;
    // The documents take two thirds of the width, the calls the lower half of the height.
    const LONG column = left + (right - left - margin) * 2 / 3;
    const LONG top = bar + margin;
    const LONG row = top + (bottom - top - margin) / 2;
    const LONG lower = row + margin;
    return {
        .nameBar = {client.left, client.top, client.right, bar},
        .documentsLabel = {left, top, column, top + label},
        .documents = {left, top + label, column, row},
        .foldersLabel = {column + margin, top, right, top + label},
        .folders = {column + margin, top + label, right, row},
        .callsLabel = {left, lower, right, lower + label},
        .calls = {left, lower + label, right, bottom},
    };
}

POINT smallestWindow(UINT dpi) {
    return {MulDiv(kSmallest.x, static_cast<int>(dpi), 96),
            MulDiv(kSmallest.y, static_cast<int>(dpi), 96)};
}
