#include "tracking/form3.h"

#include <gtest/gtest.h>

#include "fakes/fake_platform.h"
#include "startup/module1.h"
#include "tracking/form3_ids.h"

TEST(Form3, OpensTheFirstLineToDo) {
    FakePlatform machine;
    machine.files.texts[L"c:\\tarnwick\\tarnwick.lst"] =
        L"1  c:\\a.SLDPRT\r\n0  c:\\b.SLDASM\r\n0  c:\\c.SLDDRW\r\n";
    Module1 module;
    module.labels = standardLabels();
    module.FichListe = L"c:\\tarnwick\\tarnwick.lst";
    module.SwApp = machine.automation.attach(L"SldWorks.Application");
    Form3 form(module, machine.platform);
    machine.automation.takeJournal();
    form.Form_Load();
    EXPECT_EQ(machine.automation.takeJournal().front(),
              L"OpenDoc6(&\"c:\\b.SLDASM\", &2:i2, 1:i4, \"\", &0:i4, &0:i4)");
    EXPECT_EQ(machine.window(IDD_FORM3).listBox(IDC_FORM3_LIST1).selection(), std::vector{1});
}
