@echo off
"%~dp0install.cmd" /u %*
