#include "support/sound_settings_fixture.h"

namespace {

/// Sounds whose names other systems do not allow.
class SoundNames : public SoundSettingsTest {};

TEST_F(SoundNames, have_their_quotation_marks_twice_in_a_command) {
    put_sound(QStringLiteral("a \"b\".wav"));
    start();

    click_item("Filelist", QStringLiteral("a \"b\".wav"));

    EXPECT_EQ(multimedia_.sent.first(),
              QStringLiteral("open \"%1\" type waveaudio alias hang|0").arg(sound(QStringLiteral("a \"\"b\"\".wav"))));
}

}  // namespace
