// Classes and applications as JSON.
#pragma once

namespace routerdb {

void print_all_classes();
void print_class(const char *id);
void print_application(const char *id);
void print_applications_of_class(const char *class_id);

}  // namespace routerdb
