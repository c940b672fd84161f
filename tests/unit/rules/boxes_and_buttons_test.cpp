// What the system shows for us: its message boxes, and a window's button on its taskbar.

#include "rules/boxes_and_buttons.h"

#include "unit/unit_test.h"

using Answer = MessageBoxes::Answer;
using Told = std::vector<ButtonProgress>;

struct FakeButton : TaskbarButton {
    Told told;
    void show(const ButtonProgress& progress) override { told.push_back(progress); }
};

TEST(MessageBoxButtons, AreFrenchAndALoneOneStaysOk) {
    EXPECT_STREQ(frenchCaption(Answer::Yes, false), L"&Oui");
    EXPECT_STREQ(frenchCaption(Answer::No, false), L"&Non");
    EXPECT_STREQ(frenchCaption(Answer::Retry, true), L"&Réessayer");
    EXPECT_STREQ(frenchCaption(Answer::Cancel, true), L"Annuler");
    EXPECT_EQ(frenchCaption(Answer::Cancel, false), nullptr) << "the lone button, on Windows";
    EXPECT_EQ(frenchCaption(Answer::Ok, false), nullptr) << "the lone button, elsewhere";
}

TEST(MessageBoxTexts, KeepQuotesOnTheLineOfWhatTheyQuote) {
    EXPECT_EQ(withBoundQuotes(L"« Oui » « Non »« "), L"«\u00A0Oui\u00A0» «\u00A0Non\u00A0»«\u00A0");
}

TEST(TaskbarProgress, IsToldOnceTheButtonIsThereAndHasAColourBeforeAnythingIsDone) {
    FakeButton button;
    TaskbarProgress progress(button);
    progress.set(1, 3);
    EXPECT_EQ(button.told, Told{});
    progress.onButtonMade();
    progress.set(2, 3);
    progress.set(2, 3);
    progress.onButtonMade();  // the Explorer was started again
    progress.set(0, 0);
    progress.set(0, 25);
    progress.set(Alert::Warning);
    progress.set(7, 25);
    progress.set(Alert::Refusal);
    progress.set(Alert::None);
    EXPECT_EQ(button.told, (Told{{1, 3},
                                 {2, 3},
                                 {2, 3},
                                 {0, 0},
                                 {0, 25},
                                 {3, 25, Alert::Warning},
                                 {7, 25, Alert::Warning},
                                 {7, 25, Alert::Refusal},
                                 {7, 25}}));
}
