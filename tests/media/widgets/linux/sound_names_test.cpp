#include "support/sound_settings_fixture.h"

using namespace Qt::StringLiterals;

namespace {

/// Sounds whose names other systems do not allow.
class SoundNames : public SoundSettingsTest {};

TEST_F(SoundNames, have_their_quotation_marks_twice_in_a_command) {
    put_sound(u"a \"b\".wav"_s);
    start();

    click_item("Filelist", u"a \"b\".wav"_s);

    EXPECT_EQ(multimedia_.sent.first(), u"open \"%1\" type waveaudio alias hang|0"_s.arg(sound(u"a \"\"b\"\".wav"_s)));
}

}  // namespace
