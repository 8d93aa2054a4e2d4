// The drawing preview in the host: it shows blocks of the current drawing, and answers questions about it.
#include "tests/ui/host/HostProcess.h"

namespace {

// A block with a red square of 20 in the middle of a frame of 100.
constexpr char HELPERS[] = R"(
(defun show (value) (prin1 value) (terpri))
(draw_block "Lamp")
(draw_color 1) (draw_solid '(40 40) '(60 40) '(60 60) '(40 60))
(draw_color 7) (draw_polyline '((0 0) (100 0) (100 100) (0 100)) T)
(draw_mtext '(900 900) 1 "")
(draw_block nil)
)";

// What the program prints, with alerts among it.
std::string printed(const std::string& forms) {
    const TempFolder folder;
    const std::string file = "(setq file \"" + folder.path.generic_string() + "/saved.wdr\")";
    const HostRun run =
        startHost(L"bin", {L"--plugin", buildFolder() + L"\\tests\\previewplugin.pgx", L"--headless",
                           L"--timeout", L"60", folder.file("preview.lsp", file + HELPERS + forms)});
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.status, 0U);
    return run.output;
}

TEST(PreviewInHost, AnswersQuestionsAboutTheCurrentDrawing) {
    EXPECT_EQ(printed(R"((show (list (p_blocks) (p_exists "LAMP") (p_exists "none")))
                         (show (list (p_size "lamp") (p_size "none") (p_size "") (p_drawing_size)))
                         (draw_new) (show (p_blocks)))"),
              "((\"Lamp\") T nil)\n((100.0 100.0) nil nil -1)\n(\"\")\n");
}

TEST(PreviewInHost, FramesABlockOrScalesItsPixels) {
    // Shown whole, 200 pixels see 100; two pixels to a unit, one, and half of what is shown whole.
    EXPECT_EQ(printed(R"((p_show "LAMP") (show (p_span))
                         (p_show "Lamp" 0.5 nil 1) (show (p_span))
                         (p_show "Lamp" 1 nil 1) (show (p_span))
                         (p_show "Lamp" 0.5 nil 2) (show (p_span))
                         (p_record "Lamp") (show (p_span)))"),
              "40\n40\n20\n20\n40\n");
}

TEST(PreviewInHost, TellsWhatTheMainFrameShows) {
    EXPECT_EQ(printed(R"((draw_line '(0 0) '(10 4)) (draw_show)
                         (setq view (p_view nil))
                         (show (list (< 9 (cadr view) 12) (< 3 (car view) 6)))
                         (show (cddr view))
                         (draw_variable "VIEWCTR" '(7 7 7))
                         (show (list (caddr (p_view T)) (cadddr (p_view T)))))"),
              "(T T)\n(5.0 2.0 0.0 0.0 0.0 1.0 0.0)\n(5.0 2.0)\n");
}

TEST(PreviewInHost, ShowsARecordOfTheDrawingThatItLoaded) {
    EXPECT_EQ(printed(R"((draw_save file) (draw_new)
                         (p_load file)
                         (show (list (p_blocks) (p_drawing_size)))
                         (p_record "Lamp") (show (p_span))
                         (p_load_path file) (p_record "Lamp") (show (p_span))
                         (p_show "*Model_Space") (show (p_span)))"),
              "((\"Lamp\") (-2e+20 -2e+20))\n40\n40\n0\n");
}

// Far from the origin a step of 1 is lost, and a camera has no direction.
TEST(PreviewInHost, TellsOfAViewThatIsRefusedAndGoesOn) {
    const std::string alert = "[alert] An error occurred when trying to display the drawing.\n";
    EXPECT_EQ(printed(R"((draw_block "Far") (draw_line '(0 0 1e17) '(10 10 2e17))
                         (show (p_show "Far"))
                         (draw_variable "CVPORT" 9)
                         (show (p_show "Far"))
                         (draw_variable "CVPORT" 1) (draw_variable "TILEMODE" 0)
                         (show (p_show "Far"))
                         (p_show "Lamp") (show (p_span)))"),
              alert + "T\n" + alert + "T\n" + alert + "T\n40\n");
}

}  // namespace
