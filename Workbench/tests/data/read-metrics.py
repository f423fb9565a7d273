"""Reads OpenMetrics text with the parser of a monitoring system's own client library, and prints each
sample as that library understood it. Fails when the text breaks a rule of the format."""
import sys

from prometheus_client.openmetrics.parser import text_string_to_metric_families

for family in text_string_to_metric_families(sys.stdin.buffer.read().decode("utf-8")):
    for sample in family.samples:
        labels = ",".join(f"{name}={value!r}" for name, value in sorted(sample.labels.items()))
        print(f"{family.type} {sample.name}{{{labels}}} {sample.value:g} {family.unit}".rstrip())
