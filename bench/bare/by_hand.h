// The operations by hand, in the order of connections and statements that the router has always had. All work on `desk`
// or print to the standard output stream.
#pragma once

namespace bench::bare {

void get_device();
void get_device_converted();
void list_devices();
void list_url_filters();
void list_behavior_rules();
void execute_update();
void configure_device();
void register_device();
void print_device_page();
void print_classes();
void print_groups();
void request_one();
void request_all();
void fetch_url_filters();

}  // namespace bench::bare
