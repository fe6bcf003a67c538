"""Declarations of all exports for hosts in other languages than C."""
