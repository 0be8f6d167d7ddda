--top LBX_STRUCTURAL_NETLIST="ON" a b s
--


-- (legal notice)



--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 a	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 b	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 s	:	IN  STD_LOGIC;
		 y	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 z	:	OUT  STD_LOGIC
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_w_lg_a1w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_w_lg_w_lg_a1w2w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
 BEGIN

	loop0 : FOR i IN 0 TO 1 GENERATE 
		wire_w_lg_a1w(i) <= a(i) AND b(i);
	END GENERATE loop0;
	loop1 : FOR i IN 0 TO 1 GENERATE 
		wire_w_lg_w_lg_a1w2w(i) <= wire_w_lg_a1w(i) OR s;
	END GENERATE loop1;
	y <= wire_w_lg_w_lg_a1w2w;
	z <= (NOT s);

 END RTL; --top
--VALID FILE
