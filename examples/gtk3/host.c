/* A window of GTK with a button that asks about a range of the map. Its title tells the answer.
 *
 *   cc host.c -o host $(pkg-config --cflags --libs gtk+-3.0 orreryui-c)
 */
#include <gtk/gtk.h>
#include <orreryui/orreryui_c.h>

/* While the dialog is open it runs the events of GTK as well. So the window takes no input, or the
 * button could be pressed again. */
static void ask(GtkWidget* button, gpointer unused) {
  static int count = 0;
  GtkWidget* const window = gtk_widget_get_toplevel(button);
  int status;
  char* title;
  (void)unused;
  gtk_widget_set_sensitive(window, FALSE);
  status = orreryui_OnRengeConfirm("139.5000", "35.4000", "139.6000", "35.3000");
  gtk_widget_set_sensitive(window, TRUE);
  gtk_widget_grab_focus(button);

  title = g_strdup_printf("Answer %d: %s", ++count, status == ORRERYUI_OK ? "enlarge" : "drop");
  gtk_window_set_title(GTK_WINDOW(window), title);
  g_free(title);
}

/* The close box counts only while no dialog is open. */
static gboolean stay_open(GtkWidget* window, GdkEvent* event, gpointer unused) {
  (void)event;
  (void)unused;
  return !gtk_widget_get_sensitive(window);
}

int main(int argc, char** argv) {
  GtkWidget *window, *button;
  gtk_init(&argc, &argv);
  window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  button = gtk_button_new_with_label("Range...");
  gtk_window_set_title(GTK_WINDOW(window), "Host");
  gtk_container_set_border_width(GTK_CONTAINER(window), 60);
  gtk_container_add(GTK_CONTAINER(window), button);
  g_signal_connect(button, "clicked", G_CALLBACK(ask), NULL);
  g_signal_connect(window, "delete-event", G_CALLBACK(stay_open), NULL);
  g_signal_connect(window, "destroy", G_CALLBACK(gtk_main_quit), NULL);
  gtk_widget_show_all(window);
  gtk_main();
  return 0;
}
